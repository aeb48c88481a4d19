#include "reports/clsRTFBudget.h"

#include "core/clsApp.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"

RtfMarkup clsRTFBudget::Title() const {
    return FilterText + QStringLiteral(" Budget Expenses");
}

RtfMarkup clsRTFBudget::Statistics() const {
    return QStringLiteral("Total Records: ") + Count(gApp().TotalBudget(FilterEnum));
}

QList<clsRTFReport::Column> clsRTFBudget::Columns() const {
    return {{"Expense", 4500, 2500},  {"Actual", 6200, 4000, clsRTFCell::AlignRight},
            {"Due Date", 7700, 5500}, {"Paid Date", 9200, 7000},
            {"Vendor", 11600, 8300},  {"Paid by", 0, 0}};
}

QList<clsBUDGET> clsRTFBudget::Expenses() const {
    return clsBUDGET().OpenRecords(FilterEnum, false);
}

QList<RtfMarkup> clsRTFBudget::Cells(const clsBUDGET& expense) const {
    return {
        expense.ITEM_NM,   Amount(expense.Amount()), expense.DUE_DT_DDMMMYYYY(), expense.PAID_DT_DDMMMYYYY(),
        expense.VENDOR_NM, expense.PAID_BY_TX};
}

RtfMarkup clsRTFBudget::Amount(clsMoney amount) const {
    return RtfMarkup::Figure(Rtf() ? amount.Text() : amount.Stored());
}

void clsRTFBudget::SumRow(const QString& caption, clsMoney amount, bool filled, bool red) {
    RTF.SetCellsBOLD(true);
    RTF.SetCellsCELL_BACKCOLOR(filled ? clsRTFMasterTemp::SubHeaderFill : clsRTFMasterTemp::NoColor);
    RTF.RTFCells[1].CELL_FORECOLOR = red ? clsRTFMasterTemp::Red : clsRTFMasterTemp::NoColor;
    PrintRow({caption, Amount(amount)});
    RTF.RTFCells[1].CELL_FORECOLOR = clsRTFMasterTemp::NoColor;
    RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::NoColor);
}

void clsRTFBudget::PrintRows() {
    const QList<clsBUDGET> expenses = Expenses();
    clsMoney listed;
    clsMoney subtotal;
    for (qsizetype i = 0; i < expenses.size(); ++i) {
        const clsBUDGET& expense = expenses[i];
        const QString group = GroupOf(expense);
        if (i == 0 || group != GroupOf(expenses[i - 1]))
            GroupRow(group);
        PrintRow(Cells(expense));
        subtotal += expense.Amount();
        listed += expense.Amount();
        if (i + 1 == expenses.size() || GroupOf(expenses[i + 1]) != group) {
            SumRow(QStringLiteral("Subtotal ") + group, subtotal, false);
            subtotal = clsMoney();
        }
    }
    SumRow(QStringLiteral("Total"), listed, true);
    PrintWholeBudget();
}

// The figures of the whole budget, whatever the filter listed.
void clsRTFBudget::PrintWholeBudget() {
    const clsMoney estimated = clsBUDGET_CATEGORY_DICT::TotalSumEstimates();
    const clsMoney actual = clsBUDGET_CATEGORY_DICT::TotalSumActual();
    RTF.PrintBlankCells();
    GroupRow(QStringLiteral("Totals"));
    SumRow(QStringLiteral("Estimated"), estimated, false);
    SumRow(QStringLiteral("Due"), clsBUDGET_CATEGORY_DICT::TotalSumDue(), false);
    SumRow(QStringLiteral("Paid"), clsBUDGET_CATEGORY_DICT::TotalSumPaid(), false);
    SumRow(QStringLiteral("Actual"), actual, false);
    SumRow(QStringLiteral("Remaining (+/-)"), estimated - actual, true, (estimated - actual).IsNegative());
}
