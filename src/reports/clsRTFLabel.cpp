#include "reports/clsRTFLabel.h"

#include "core/modGeneral.h"

#include <QHash>
#include <algorithm>

QString clsRTFLabel::Build() {
    const clsLabelSheet& sheet = clsLabelSheet::Of(Sheet);
    SetUp(sheet);
    if (!RTF.RTFOpen())
        return {};
    QHash<int, QString> texts;
    int last = 0;
    for (const clsLabel& label : Labels) {
        texts.insert(label.Number(), label.FULL_ADDRESS_TX);
        last = std::max(last, label.Number());
    }
    mColumn = 0;
    RTF.ResetCells();
    for (int n = 1; n <= last; ++n)
        AddLabel(sheet, texts.value(n));
    if (mColumn > 0 && mColumn < sheet.Across)
        RTF.PrintCells(false, sheet.RowHeight);
    return RTF.RTFClose() ? RTF.FULL_FILE_NAME() : QString();
}

void clsRTFLabel::SetUp(const clsLabelSheet& sheet) {
    RTF.SetGlobalSettings();
    RTF.USE_RTF = true; // labels are a laid-out document, never CSV
    RTF.USE_PDF = Pdf;
    RTF.A4 = sheet.A4;
    RTF.LANDSCAPE = false;
    if (!FONT_NAME.isEmpty())
        RTF.FONT_NAME = FONT_NAME;
    if (!FONT_SIZE.isEmpty())
        RTF.FONT_SIZE = FONT_SIZE;
    RTF.FILE_NAME = QStringLiteral("Labels_") + ReportTimeStamp();
    RTF.PRINT_HEADER_ICON = false;
    RTF.PRINT_HEADER_DATE = false;
    RTF.PRINT_FOOTER = false;
    RTF.MARGIN_TOP = sheet.MarginTop;
    RTF.MARGIN_LEFT = sheet.MarginSide;
    RTF.MARGIN_RIGHT = sheet.MarginSide;
    RTF.MARGIN_BOTTOM = 0;
    RTF.MARGIN_HEADER = 0.5F;
    RTF.MARGIN_FOOTER = 0.5F;
    RTF.CELL_MARGIN_LEFT = 0;
    RTF.CELL_MARGIN_TOP = 0;
    RTF.CELL_MARGIN_BOTTOM = 0;
    RTF.CELL_MARGIN_RIGHT = 0;
    RTF.TITLE = RtfMarkup();
    RTF.STATISTICS = RtfMarkup();
}

// A label in the next column; a gap follows the first two. The row prints when it is full.
void clsRTFLabel::AddLabel(const clsLabelSheet& sheet, const QString& text) {
    if (mColumn == sheet.Across) {
        mColumn = 0;
        RTF.ResetCells();
    }
    ++mColumn;
    const int labelRight[] = {sheet.FirstLabelRight, sheet.SecondLabelRight, RTF.TABLE_WIDTH()};
    const int gapRight[] = {sheet.FirstGapRight, sheet.SecondGapRight};
    RTF.AddCell(labelRight[mColumn - 1], text, clsRTFCell::AlignCenter, clsRTFCell::AlignTop,
                clsRTFCell::NoBorder);
    if (mColumn < sheet.Across)
        RTF.AddCell(gapRight[mColumn - 1], RtfMarkup(), clsRTFCell::AlignCenter, clsRTFCell::AlignTop,
                    clsRTFCell::NoBorder);
    if (mColumn == sheet.Across)
        RTF.PrintCells(false, sheet.RowHeight);
}
