#include "reports/clsRTFWidgetsWeddingVows.h"

#include "guests/clsCONTACT.h"
#include "widgets/clsWORDING.h"

namespace {

const clsCONTACT& Partner(int row) {
    return row == clsWORDING::BrideVows ? gBride() : gGroom();
}

} // namespace

QList<int> clsRTFWidgetsWeddingVows::Rows() const {
    if (ReportIndex == QLatin1String("3"))
        return {clsWORDING::BrideVows};
    if (ReportIndex == QLatin1String("4"))
        return {clsWORDING::GroomVows};
    return {clsWORDING::BrideVows, clsWORDING::GroomVows};
}

RtfMarkup clsRTFWidgetsWeddingVows::Title() const {
    const QList<int> rows = Rows();
    if (rows.size() > 1)
        return "All Wedding Vows";
    return Partner(rows.first()).FIRST_NM + QStringLiteral("'s Wedding Vows");
}

QList<clsRTFReport::Column> clsRTFWidgetsWeddingVows::Columns() const {
    QList<Column> columns;
    const qsizetype count = Rows().size();
    for (int row : Rows()) {
        const int half = count > 1 && columns.isEmpty() ? RTF.TABLE_WIDTH() / 2 : 0;
        columns.append({Partner(row).FIRST_NM + QStringLiteral("'s"), half, half});
    }
    return columns;
}

void clsRTFWidgetsWeddingVows::PrintRows() {
    QList<RtfMarkup> texts;
    for (int row : Rows()) {
        clsWORDING vows;
        vows.OpenRecord(QString::number(row));
        texts.append(vows.WORDING_TX);
    }
    PrintRow(texts);
}
