#pragma once

#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "reports/clsRTFReport.h"

#include <QByteArray>
#include <QSize>
#include <functional>

// Estimates vs. Actuals: one row a category with its estimate, its share of all estimates, the due and
// paid amounts, their sum and what is left of the estimate (red below zero), then the totals; in RTF the
// bar chart of estimate against actual per category follows the table. A CSV has no picture.
class clsRTFBudgetCategory : public clsRTFReport {
public:
    clsRTFBudgetCategory() : clsRTFReport("clsRTFBudgetCategory") {}

    // Draws the bar chart of the categories as a PNG of the given size in pixels. The screens register
    // one; without it the report says where the chart can be had.
    using ChartPainter = std::function<QByteArray(const QList<clsBudgetCategorySums>&, QSize)>;
    static void SetChartPainter(ChartPainter painter);
    static QString NoChartText();
    // "12.50%" of the share (0.125), in the dialect's numbers.
    RtfMarkup Percent(double share) const;

protected:
    RtfMarkup Title() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;

private:
    void SumsRow(const clsBudgetCategorySums& sums, double share, int sumsFill);
    RtfMarkup Amount(clsMoney amount) const;
    void PrintChart(const QList<clsBudgetCategorySums>& categories);
};
