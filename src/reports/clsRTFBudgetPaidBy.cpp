#include "reports/clsRTFBudgetPaidBy.h"

RtfMarkup clsRTFBudgetPaidBy::Title() const {
    return "Budget Expenses (Grouped By Payer)";
}

QList<clsRTFReport::Column> clsRTFBudgetPaidBy::Columns() const {
    return {{"Expense", 4500, 3500},
            {"Actual", 6200, 5000, clsRTFCell::AlignRight},
            {"Date Paid", 7700, 6500},
            {"Vendor", 11000, 8000},
            {"Category", 0, 0}};
}

QList<clsBUDGET> clsRTFBudgetPaidBy::Expenses() const {
    return clsBUDGET().OpenRecords(clsBUDGET::AllExpenses, true);
}

QList<RtfMarkup> clsRTFBudgetPaidBy::Cells(const clsBUDGET& expense) const {
    return {expense.ITEM_NM, Amount(expense.Amount()), expense.PAID_DT_DDMMMYYYY(), expense.VENDOR_NM,
            expense.BUDGET_CATEGORY_TX};
}
