#pragma once

#include "reports/clsRTFBudget.h"

// Every expense grouped by the one who pays it, with a subtotal per payer and the same totals.
class clsRTFBudgetPaidBy : public clsRTFBudget {
public:
    clsRTFBudgetPaidBy() : clsRTFBudget("clsRTFBudgetPaidBy") { FilterEnum = clsBUDGET::AllExpenses; }

protected:
    RtfMarkup Title() const override;
    QList<Column> Columns() const override;
    QList<clsBUDGET> Expenses() const override;
    QString GroupOf(const clsBUDGET& expense) const override { return expense.PAID_BY_TX; }
    QList<RtfMarkup> Cells(const clsBUDGET& expense) const override;
};
