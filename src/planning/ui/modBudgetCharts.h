#pragma once

#include "planning/clsBUDGET_CATEGORY_DICT.h"

#include <QByteArray>
#include <QList>
#include <QSize>

class QChart;

// The budget as pictures: bars of estimate against actual per category, and a ring of the actual
// spending by category. The selected category stands out in both; an empty id selects none. The same
// charts serve the Budget page and the picture of the Estimates vs. Actuals report.
namespace modBudgetCharts {

QChart* NewChart();
// Fills the chart anew with the bars of every category, in the given order from the top.
void FillBars(QChart* chart, const QList<clsBudgetCategorySums>& categories, const QString& selectedId);
// Fills the chart anew with a ring of the categories that have spent something.
void FillRing(QChart* chart, const QList<clsBudgetCategorySums>& categories, const QString& selectedId);
// The bar chart as a PNG of that size, drawn without a window; empty when it can't be drawn.
QByteArray BarsPng(const QList<clsBudgetCategorySums>& categories, QSize size);

} // namespace modBudgetCharts
