#pragma once

#include "planning/clsBUDGET.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "shell/usrListPage.h"

class QChart;
class QChartView;
class QMenu;
class QSplitter;
class usrBudgetInfo;

// The budget: above, the categories with their estimate, its share, due, paid, actual and what is left
// ("+/-", red below zero), closed by the "Totals" row, beside the bars of estimate against actual; below,
// the expenses of the selected category (all of them under "Totals"), grouped by category, with the
// filters All, Due, Pastdue and Paid counted for that category. The left panel holds the totals of the
// whole budget, the cost per attendee and the ring of what was spent by category.
class frmMain_07_Budget : public usrListPage {
    Q_OBJECT

public:
    explicit frmMain_07_Budget(QWidget* parent = nullptr);

    enum ActionIndex : int {
        AddCategory = 0,
        EditCategory,
        DeleteCategory,
        AddExpense,
        EditExpense,
        DeleteExpense,
        PrintReports,
        OpenReportsFolder,
        OpenCalculator
    };
    enum Column : int {
        BUDGET_ICON = 0,
        ITEM_NM,
        ACTUAL,
        DUE_DT,
        PAID_DT,
        VENDOR_NM,
        PAID_BY_TX,
        BUDGET_CATEGORY_TX,
        ACTUAL_PERCENT,
        ColumnCount
    };
    enum TopColumn : int {
        ICO = 0,
        CATEGORY_TX,
        ESTIMATE_AMOUNT_NB,
        ESTIMATE_PERCENT_NB,
        DUE_AMOUNT_NB,
        PAID_AMOUNT_NB,
        ACTUAL_AMOUNT_NB,
        REMAINING,
        TopColumnCount
    };
    // The splitter's stored place and its upper bound, in twips from the top.
    static constexpr int kSplitterDefault = 5900;
    static constexpr int kSplitterTop = 500;

    usrGrid* GridTop() const { return gridTop; }
    QSplitter* Splitter() const { return imgSplitter; }
    QChart* BarChart() const { return mBars; }
    QChart* RingChart() const { return mRing; }
    // The selected category's key; empty under "Totals" or with nothing selected.
    QString SelectedCategory() const;
    void SelectCategory(const QString& categoryId);
    // "12.50%"; a category of no estimates shows "0.00%".
    static QString PercentText(double share);
    // Keeps the splitter's place.
    void Leaving() override;

public slots:
    void mfrmBudget_Changed(const QString& budgetId);
    void mfrmBudgetCategory_Changed(const QString& categoryId);
    void mfrmBudget_OptionsUpdated();

protected:
    long CountOf(int filterId) const override;
    int FillRows(clsGridFill& fill, int filterId) override;
    void Activate(qint64 key) override;
    void UpdateActions() override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* BuildTopPane();
    void BuildActions();
    void BuildMenus();
    QMenu* BuildPaidByMenu();
    void FillTop();
    void RefreshCharts();
    void RefreshTotals();
    void OnCategoryChanged();
    void OpenExpense(const QString& budgetId);
    void OpenCategory(const QString& categoryId);
    void DeleteExpenseRow();
    void DeleteCategoryRow();
    void SetPaidBy(const QString& paidById);
    void StoreSplitter();
    void RestoreSplitter();
    qint64 SelectedExpense() const;

    usrGrid* gridTop = nullptr;
    QSplitter* imgSplitter = nullptr;
    usrBudgetInfo* mInfo = nullptr;
    QChartView* mBarView = nullptr;
    QChartView* mRingView = nullptr;
    QChart* mBars = nullptr;
    QChart* mRing = nullptr;
    QMenu* mnuPaidBy = nullptr;
    QList<clsBudgetCategorySums> mSums;
    QString mShownCategory;
    bool mSplitterRestored = false;
};
