#include "reports/clsRTFBudgetCategory.h"

#include <QLocale>

#include <algorithm>

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kTwipsPerInch = 1440;

clsRTFBudgetCategory::ChartPainter& Painter() {
    static clsRTFBudgetCategory::ChartPainter painter;
    return painter;
}

} // namespace

void clsRTFBudgetCategory::SetChartPainter(ChartPainter painter) {
    Painter() = std::move(painter);
}

QString clsRTFBudgetCategory::NoChartText() {
    return QStringLiteral("The chart of estimates against actuals is drawn when this report is written from "
                          "the Budget page of the program.");
}

RtfMarkup clsRTFBudgetCategory::Title() const {
    return "Estimates vs. Actuals";
}

QList<clsRTFReport::Column> clsRTFBudgetCategory::Columns() const {
    const bool wide = Landscape() || !Rtf();
    return {{"Budget Category", 3800, 2500},
            {"Estimate", 5900, 3900, clsRTFCell::AlignRight},
            {"%", 7000, 4800, clsRTFCell::AlignRight},
            {"Due", 8670, 6100, clsRTFCell::AlignRight},
            {wide ? "+ Paid" : "Paid", 10340, 7400, clsRTFCell::AlignRight},
            {wide ? "= Actual" : "Actual", 12010, 8700, clsRTFCell::AlignRight},
            {"+/-", 0, 0, clsRTFCell::AlignRight}};
}

RtfMarkup clsRTFBudgetCategory::Amount(clsMoney amount) const {
    return RtfMarkup::Figure(Rtf() ? amount.Text() : amount.Stored());
}

RtfMarkup clsRTFBudgetCategory::Percent(double share) const {
    const QLocale locale = Rtf() ? QLocale() : QLocale::c();
    return RtfMarkup::Figure(locale.toString(share * 100.0, 'f', 2) + QLatin1Char('%'));
}

// Due, paid, actual and the difference on a grey ground; the difference red below zero.
void clsRTFBudgetCategory::SumsRow(const clsBudgetCategorySums& sums, double share, int sumsFill) {
    for (int column : {3, 4, 5, 6})
        RTF.RTFCells[column].CELL_BACKCOLOR = sumsFill;
    RTF.RTFCells[6].CELL_FORECOLOR =
        sums.Remaining().IsNegative() ? clsRTFMasterTemp::Red : clsRTFMasterTemp::NoColor;
    PrintRow({sums.BUDGET_CATEGORY_TX, Amount(sums.Estimate), Percent(share), Amount(sums.Due),
              Amount(sums.Paid), Amount(sums.Actual()), Amount(sums.Remaining())});
    RTF.RTFCells[6].CELL_FORECOLOR = clsRTFMasterTemp::NoColor;
}

void clsRTFBudgetCategory::PrintRows() {
    const QList<clsBudgetCategorySums> categories = clsBUDGET_CATEGORY_DICT::OpenSums();
    const clsBudgetCategorySums totals =
        clsBudgetCategorySums::WholeBudget(QStringLiteral("0"), QStringLiteral("Totals:"));
    for (const clsBudgetCategorySums& category : categories)
        SumsRow(category, clsBUDGET_CATEGORY_DICT::GetESTIMATE_PERCENT(category.Estimate, totals.Estimate),
                clsRTFMasterTemp::LightGray);
    RTF.SetCellsBOLD(true);
    RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::SubHeaderFill);
    RTF.SetCellsCELL_BORDER(clsRTFCell::BorderBox);
    SumsRow(totals, 1.0, clsRTFMasterTemp::SubHeaderFill);
    RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::NoColor);
    PrintChart(categories);
}

// Under the table, across the page's width at 2:1, drawn at twice the screen's resolution.
void clsRTFBudgetCategory::PrintChart(const QList<clsBudgetCategorySums>& categories) {
    if (!Rtf())
        return;
    RtfMarkup text = RtfMarkup::Control("\\pard\\plain\\ql\\sb240\\sa120") +
                     RtfMarkup::Bold("Estimate against actual per category") +
                     RtfMarkup::Control("\\par\\pard\\plain\\qc");
    const int widthTwips = int((RTF.PAPER_WIDTH - RTF.MARGIN_LEFT - RTF.MARGIN_RIGHT) * kTwipsPerInch * 0.9);
    const int heightTwips = std::min(
        widthTwips / 2, int((RTF.PAPER_HEIGHT - RTF.MARGIN_TOP - RTF.MARGIN_BOTTOM - 1.5) * kTwipsPerInch));
    const QSize pixels(2 * widthTwips / kTwipsPerPixel, 2 * heightTwips / kTwipsPerPixel);
    const QByteArray png = Painter() ? Painter()(categories, pixels) : QByteArray();
    if (png.isEmpty())
        text += RtfMarkup::Italic(NoChartText());
    else
        text += RtfMarkup::Picture(RtfMarkup::PictureKind::Png, png, pixels.width(), pixels.height(),
                                   widthTwips, heightTwips);
    RTF.PrintRaw(text + RtfMarkup::Control("\\par"));
}
