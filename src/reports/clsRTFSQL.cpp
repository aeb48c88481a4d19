#include "reports/clsRTFSQL.h"

#include "core/clsDB.h"
#include "core/modUserQuery.h"

#include <QRegularExpression>
#include <algorithm>
#include <sqlite3.h>

namespace {

// A value that is a plain number goes into a CSV file as a number, negative amounts included.
RtfMarkup CellValue(const QString& value) {
    static const QRegularExpression number(QStringLiteral("^-?\\d+(\\.\\d+)?$"));
    return number.match(value).hasMatch() ? RtfMarkup::Figure(value) : RtfMarkup(value);
}

} // namespace

QString clsRTFSQL::Build() {
    if (!IsSelectStatement(SQL))
        throw clsDbError(NotSelectMessage(), SQLITE_AUTH);
    return clsRTFReport::Build();
}

bool clsRTFSQL::IsSelectStatement(const QString& sql) {
    return sql.left(7).toUpper() == QLatin1String("SELECT ");
}

int clsRTFSQL::LeadingNumber(const QString& alias) {
    static const QRegularExpression leading(QStringLiteral("^ *([+-]?(\\d+\\.?\\d*|\\.\\d+))"));
    const QRegularExpressionMatch match = leading.match(alias);
    if (!match.hasMatch())
        return 0;
    const double twips = std::clamp(match.captured(1).toDouble(), 0.0, 1.0e6);
    return static_cast<int>(std::lround(twips));
}

QList<clsRTFSQL::HeaderCell> clsRTFSQL::HeaderFromAliases(const QStringList& names, int tableWidth) {
    QList<HeaderCell> header;
    for (qsizetype i = 0; i < names.size(); ++i) {
        QString name = names[i];
        name.remove(QLatin1Char('\''));
        if (i + 1 == names.size()) {
            header.append({tableWidth, name});
            continue;
        }
        const qsizetype blank = name.indexOf(QLatin1Char(' '));
        header.append({LeadingNumber(name), blank < 0 ? QString() : name.mid(blank + 1).trimmed()});
    }
    return header;
}

void clsRTFSQL::PrintRows() {
    QList<RtfMarkup> cells;
    modUserQuery::Run(
        gDB().DatabasePath, SQL, modUserQuery::Limits(),
        [this](const QStringList& names) {
            QList<Column> columns;
            for (const HeaderCell& cell : HeaderFromAliases(names, RTF.TABLE_WIDTH()))
                columns.append({cell.Caption, cell.CELLX, cell.CELLX});
            HeaderRow(columns);
        },
        [this, &cells](QStringList& values) {
            cells.clear();
            for (const QString& value : values)
                cells.append(CellValue(value));
            PrintRow(cells);
        });
}
