#include "reports/clsRTFReport.h"

#include "core/RecordIO.h"
#include "core/modGeneral.h"

#include "guests/clsCONTACT.h"
#include "reports/clsReportCatalogue.h"

#include <QLocale>

QString clsRTFReport::Build() {
    RTF.SetGlobalSettings();
    RTF.FILE_NAME = clsReportCatalogue::ReportFileName(FilePrefix());
    RTF.TITLE = Title();
    RTF.STATISTICS = Statistics();
    if (!RTF.RTFOpen())
        return {};
    const QList<Column> columns = Columns();
    if (!columns.isEmpty())
        HeaderRow(columns);
    PrintRows();
    return RTF.RTFClose() ? RTF.FULL_FILE_NAME() : QString();
}

QString clsRTFReport::FilePrefix() const {
    return clsReportCatalogue::FilePrefix(mClassName);
}

QString clsRTFReport::Money(double amount) {
    return ::CurrencyText(amount);
}

QString clsRTFReport::Stacked(const QString& first, const QString& second) {
    if (first.isEmpty() || second.isEmpty())
        return first + second;
    return first + QStringLiteral("\r\n") + second;
}

QString clsRTFReport::YesNo(const QString& flag) {
    return flag == QLatin1String("Y") ? QStringLiteral("Yes") : QStringLiteral("No");
}

void clsRTFReport::DefineColumns(const QList<Column>& columns) {
    RTF.ResetCells();
    for (qsizetype i = 0; i < columns.size(); ++i) {
        const Column& column = columns[i];
        int edge = 0;
        if (Rtf())
            edge = i + 1 == columns.size() ? RTF.TABLE_WIDTH()
                   : Landscape()           ? column.Landscape
                                           : column.Portrait;
        RTF.AddCell(edge, RtfMarkup(), column.Align, clsRTFCell::AlignTop, clsRTFCell::BorderBox);
    }
}

void clsRTFReport::HeaderRow(const QList<Column>& columns) {
    DefineColumns(columns);
    for (qsizetype i = 0; i < columns.size(); ++i)
        RTF.RTFCells[i].CELL_TX = columns[i].Caption;
    RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::HeaderFill);
    RTF.SetCellsBOLD(true);
    RTF.PrintCells(true, 0);
    RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::NoColor);
    RTF.SetCellsBOLD(false);
}

void clsRTFReport::PrintRow(const QList<RtfMarkup>& texts) {
    for (qsizetype i = 0; i < RTF.RTFCells.size(); ++i)
        RTF.RTFCells[i].CELL_TX = i < texts.size() ? texts[i] : RtfMarkup();
    RTF.PrintCells(false, 0);
}

void clsRTFReport::GroupRow(const RtfMarkup& text) {
    FullWidthRow(text, clsRTFCell::BorderBox, clsRTFMasterTemp::SubHeaderFill, true);
}

void clsRTFReport::NoteRow(const RtfMarkup& text) {
    FullWidthRow(text, clsRTFCell::NoBorder, clsRTFMasterTemp::NoColor, false);
}

void clsRTFReport::FullWidthRow(const RtfMarkup& text, int border, int fill, bool bold) {
    RTF.ResetCells();
    RTF.AddCell(Rtf() ? RTF.TABLE_WIDTH() : 0, text, clsRTFCell::AlignLeft, clsRTFCell::AlignTop, border,
                fill, 0, bold);
    RTF.PrintCells(false, 0);
    DefineColumns(Columns());
}
