#pragma once

#include "core/clsMoney.h"
#include "planning/clsBUDGET.h"
#include "reports/clsRTFReport.h"

// The expenses of a filter (all, due, past due, paid), a group a category with its subtotal under it,
// and at the end the total of the listed expenses and the figures of the whole budget. In CSV every
// amount is a plain number that a spreadsheet sums, and a subtotal is a row of its own.
class clsRTFBudget : public clsRTFFilteredReport {
public:
    clsRTFBudget() : clsRTFFilteredReport("clsRTFBudget") {}

protected:
    explicit clsRTFBudget(const char* className) : clsRTFFilteredReport(className) {}

    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;

    // What the groups are and what a row of one expense says.
    virtual QList<clsBUDGET> Expenses() const;
    virtual QString GroupOf(const clsBUDGET& expense) const { return expense.BUDGET_CATEGORY_TX; }
    virtual QList<RtfMarkup> Cells(const clsBUDGET& expense) const;

    // The currency text in RTF; "1234.50" in CSV.
    RtfMarkup Amount(clsMoney amount) const;
    // A bold row of a caption and an amount in the second column, filled when told.
    void SumRow(const QString& caption, clsMoney amount, bool filled, bool red = false);

private:
    void PrintWholeBudget();
};
