#include "planning/ui/frmMain_07_Budget.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsColor.h"
#include "core/clsDICT.h"
#include "core/modGeneral.h"
#include "planning/ui/frmBudget.h"
#include "planning/ui/frmBudgetCategory.h"
#include "planning/ui/modBudgetCharts.h"
#include "planning/ui/usrBudgetInfo.h"
#include "platform/clsRegistry.h"
#include "platform/clsShell.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/ControlIcons.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/modGrid.h"
#include "shell/modFormPlace.h"
#include "shell/modPages.h"

#include <QChart>
#include <QChartView>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLocale>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStyledItemDelegate>

namespace {

using Column = frmMain_07_Budget::Column;
using TopColumn = frmMain_07_Budget::TopColumn;
enum Image : int { NoImage = 0, ExpenseImage, PastdueImage, CategoryImage };

QIcon Coin(const QColor& color) {
    return ControlIcons::Drawn(
        [](QPainter& painter, const QRectF& r, const QColor& c) {
            painter.setPen(QPen(c.darker(140), r.width() * 0.07));
            painter.setBrush(c);
            painter.drawEllipse(
                r.adjusted(r.width() * 0.12, r.width() * 0.12, -r.width() * 0.12, -r.width() * 0.12));
            painter.drawLine(QPointF(r.center().x(), r.top() + r.height() * 0.3),
                             QPointF(r.center().x(), r.bottom() - r.height() * 0.3));
        },
        color);
}

QIcon Ledger() {
    return ControlIcons::Drawn(
        [](QPainter& painter, const QRectF& r, const QColor& c) {
            painter.setPen(QPen(c, r.width() * 0.07));
            painter.setBrush(QColor(240, 245, 252));
            painter.drawRect(
                r.adjusted(r.width() * 0.15, r.width() * 0.12, -r.width() * 0.15, -r.width() * 0.12));
            for (double y : {0.38, 0.55, 0.72})
                painter.drawLine(QPointF(r.left() + r.width() * 0.3, r.top() + r.height() * y),
                                 QPointF(r.right() - r.width() * 0.3, r.top() + r.height() * y));
        },
        QColor(60, 90, 140));
}

QList<QIcon> BudgetImages() {
    return {QIcon(), Coin(QColor(222, 184, 80)), Coin(QColor(210, 40, 40)), Ledger()};
}

QList<clsGridColumn> ExpenseColumns() {
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("BUDGET_ICON"), QString(), 28).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("ITEM_NM"), QStringLiteral("Expense"), 200).StoreWidth(),
        clsGridColumn(QStringLiteral("ACTUAL"), QStringLiteral("Amount"), 125)
            .OfKind(GridColumnKind::Money)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("DUE_DT"), QStringLiteral("Due Date"), 95)
            .OfKind(GridColumnKind::Date)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("PAID_DT"), QStringLiteral("Paid Date"), 95)
            .OfKind(GridColumnKind::Date)
            .StoreWidth(),
        clsGridColumn(QStringLiteral("VENDOR_NM"), QStringLiteral("Vendor"), 200).StoreWidth(),
        clsGridColumn(QStringLiteral("PAID_BY_TX"), QStringLiteral("Paid By"), 100).StoreWidth(),
        clsGridColumn(QStringLiteral("BUDGET_CATEGORY_TX"), QString(), 0).NeverShown(),
        clsGridColumn(QStringLiteral("ACTUAL_PERCENT"), QStringLiteral("% of Actual  "), 100)
            .OfKind(GridColumnKind::Number),
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

QList<clsGridColumn> CategoryColumns() {
    const auto money = [](const char* key, const char* caption, int width) {
        return clsGridColumn(QLatin1String(key), QLatin1String(caption), width).OfKind(GridColumnKind::Money);
    };
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("ICO"), QString(), 24).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("BUDGET_CATEGORY_TX"), QStringLiteral("Budget Category"), 170),
        money("ESTIMATE_AMOUNT_NB", "Estimate", 100),
        clsGridColumn(QStringLiteral("ESTIMATE_PERCENT_NB"), QStringLiteral("%"), 70)
            .OfKind(GridColumnKind::Number),
        money("DUE_AMOUNT_NB", "Due", 100),
        money("PAID_AMOUNT_NB", "+ Paid", 100),
        money("ACTUAL_AMOUNT_NB", "= Actual", 100),
        money("REMAINING", "+/-  ", 95),
    };
    Q_ASSERT(columns.size() == TopColumn::TopColumnCount);
    return columns;
}

// The figures the sums spell are grey, "+/-" red below zero, and the "Totals" row bold.
class clsCategoryLook : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(GridRole::ItemData).toLongLong() == 0)
            option->font.setBold(true);
        if (index.column() < TopColumn::DUE_AMOUNT_NB)
            return;
        const bool negative =
            index.column() == TopColumn::REMAINING && index.data(GridRole::SortValue).toLongLong() < 0;
        option->palette.setColor(QPalette::Text, negative ? QColor(255, 0, 0) : QColor(110, 110, 110));
    }
};

clsGridCells& MoneyCell(clsGridCells& cells, int column, clsMoney amount) {
    return cells.Set(column, amount.Text(), amount.Cents());
}

void WriteCategoryRow(clsGridCells& cells, const clsBudgetCategorySums& sums, double share) {
    cells.Icon(TopColumn::ICO, CategoryImage)
        .Set(TopColumn::CATEGORY_TX, sums.BUDGET_CATEGORY_TX)
        .Set(TopColumn::ESTIMATE_PERCENT_NB, frmMain_07_Budget::PercentText(share), share);
    MoneyCell(cells, TopColumn::ESTIMATE_AMOUNT_NB, sums.Estimate);
    MoneyCell(cells, TopColumn::DUE_AMOUNT_NB, sums.Due);
    MoneyCell(cells, TopColumn::PAID_AMOUNT_NB, sums.Paid);
    MoneyCell(cells, TopColumn::ACTUAL_AMOUNT_NB, sums.Actual());
    MoneyCell(cells, TopColumn::REMAINING, sums.Remaining());
}

// The expense's share of what its own category spent.
void WriteExpenseRow(clsGridCells& cells, const clsBUDGET& expense, clsMoney categoryActual) {
    const clsMoney amount = expense.Amount();
    const double share = clsMoney::Share(amount, categoryActual);
    cells.Icon(Column::BUDGET_ICON, expense.PASTDUE() ? PastdueImage : ExpenseImage)
        .Set(Column::ITEM_NM, expense.ITEM_NM)
        .Set(Column::ACTUAL, amount.Text(), amount.Cents())
        .Date(Column::DUE_DT, ParseDateTimeText(expense.DUE_DT).date())
        .Date(Column::PAID_DT, ParseDateTimeText(expense.PAID_DT).date())
        .Set(Column::VENDOR_NM, expense.VENDOR_NM)
        .Set(Column::PAID_BY_TX, expense.PAID_BY_TX)
        .Set(Column::BUDGET_CATEGORY_TX, expense.BUDGET_CATEGORY_TX)
        .Set(Column::ACTUAL_PERCENT,
             categoryActual.Cents() > 0 ? frmMain_07_Budget::PercentText(share) + QLatin1Char(' ')
                                        : QString(),
             share)
        .Notes(expense.NOTES_TX)
        .Keep(expense);
}

QChartView* ChartView(QChart* chart, const QString& name, QWidget* parent) {
    auto* view = new QChartView(chart, parent);
    view->setObjectName(name);
    view->setRenderHint(QPainter::Antialiasing);
    view->setMinimumSize(0, 0);
    return view;
}

} // namespace

frmMain_07_Budget::frmMain_07_Budget(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_07_Budget"), parent) {
    SetRecordNoun(QStringLiteral("expense"));
    SetEmptyText(QStringLiteral("There are no expenses here yet. Click \"Add new expense\" to enter one."),
                 QStringLiteral("No expenses match."));
    SetFilterEntries({{clsBUDGET::AllExpenses, QStringLiteral("All Expenses")},
                      {clsBUDGET::Due, QStringLiteral("Due")},
                      {clsBUDGET::Pastdue, QStringLiteral("Pastdue")},
                      {clsBUDGET::Paid, QStringLiteral("Paid")}});
    Grid()->Model()->SetImages(BudgetImages());
    SetColumns(ExpenseColumns());
    BuildActions();

    auto* info = new usrHyperlink(QStringLiteral("About these counts"), this);
    info->setObjectName(QStringLiteral("imgInfo"));
    connect(info, &usrHyperlink::Click, this, [] {
        ShowMessage(QStringLiteral("Statistics apply to the currently selected budget category."),
                    Msg::Information, QStringLiteral("Vowren"));
    });
    AddPanelWidget(info);
    mInfo = new usrBudgetInfo(this);
    AddPanelWidget(mInfo);
    mRing = modBudgetCharts::NewChart();
    mRingView = ChartView(mRing, QStringLiteral("chartRing"), this);
    mRingView->setFixedHeight(230);
    AddPanelWidget(mRingView);

    imgSplitter = PutAboveList(BuildTopPane());
    imgSplitter->setStretchFactor(0, 0);
    connect(imgSplitter, &QSplitter::splitterMoved, this, &frmMain_07_Budget::StoreSplitter);
    BuildMenus();
    AddShortcut(QKeySequence::New, [this] { emit ActionLink(AddExpense)->Click(AddExpense); });
    AddShortcut(QKeySequence(Qt::Key_F12),
                [this] { emit ActionLink(OpenCalculator)->Click(OpenCalculator); });
    connect(&usrDropdown::Notifier(), &usrDropdownNotifier::OptionsUpdated, this,
            &frmMain_07_Budget::mfrmBudget_OptionsUpdated);
}

QWidget* frmMain_07_Budget::BuildTopPane() {
    auto* pane = new QWidget(this);
    pane->setObjectName(QStringLiteral("picTop"));
    gridTop = new usrGrid(pane);
    gridTop->setObjectName(QStringLiteral("gridTop"));
    gridTop->setSelectionMode(QAbstractItemView::SingleSelection);
    gridTop->setRootIsDecorated(false);
    gridTop->Model()->SetImages(BudgetImages());
    gridTop->SetColumns(CategoryColumns());
    gridTop->setItemDelegate(new clsCategoryLook(gridTop));
    gridTop->setMinimumHeight(0);
    mBars = modBudgetCharts::NewChart();
    mBarView = ChartView(mBars, QStringLiteral("chartBars"), pane);
    // The categories take the width of their columns; the bars the rest.
    gridTop->setMinimumWidth(gridTop->header()->length() + gridTop->verticalScrollBar()->sizeHint().width() +
                             2 * gridTop->frameWidth());
    mBarView->setMinimumWidth(200);
    auto* layout = new QHBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(gridTop, 0);
    layout->addWidget(mBarView, 1);
    pane->setMinimumHeight(kSplitterTop / 15);
    connect(gridTop->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmMain_07_Budget::OnCategoryChanged);
    connect(gridTop, &QAbstractItemView::activated, this, [this] {
        if (!SelectedCategory().isEmpty())
            OpenCategory(SelectedCategory());
    });
    return pane;
}

void frmMain_07_Budget::BuildActions() {
    AddAction(AddCategory, QStringLiteral("Add new category"), [this] { OpenCategory(QString()); });
    AddAction(EditCategory, QStringLiteral("Edit category"), [this] {
        if (!SelectedCategory().isEmpty())
            OpenCategory(SelectedCategory());
    });
    AddAction(DeleteCategory, QStringLiteral("Delete category"), [this] { DeleteCategoryRow(); });
    AddAction(AddExpense, QStringLiteral("Add new expense"), [this] { OpenExpense(QString()); });
    AddAction(EditExpense, QStringLiteral("Edit expense"), [this] {
        if (SelectedExpense() != 0)
            OpenExpense(QString::number(SelectedExpense()));
    });
    AddAction(DeleteExpense, QStringLiteral("Delete expense"), [this] { DeleteExpenseRow(); });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Budget, CurrentFilter()); });
    AddReportsFolderAction(OpenReportsFolder);
    AddAction(OpenCalculator, QStringLiteral("Open calculator"), [] {
        if (!gShell().StartCalculator())
            ShowMessage(gShell().Message(), Msg::Exclamation);
    });
}

void frmMain_07_Budget::BuildMenus() {
    auto* rows = new QMenu(this);
    rows->setObjectName(QStringLiteral("mnuHiddenRoot"));
    AddActionItems(rows, {AddExpense, EditExpense, DeleteExpense});
    rows->addMenu(BuildPaidByMenu());
    ShowNotesAsRowText(rows);
    SetRowMenu(rows);

    auto* categories = new QMenu(this);
    categories->setObjectName(QStringLiteral("mnuHiddenCategoryRoot"));
    AddActionItems(categories, {AddCategory, EditCategory, DeleteCategory});
    gridTop->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(gridTop, &QWidget::customContextMenuRequested, this, [this, categories](const QPoint& at) {
        for (QAction* item : categories->actions()) {
            const usrHyperlink* link = ActionLink(item->property("actionIndex").toInt());
            item->setEnabled(link->isEnabled());
        }
        categories->popup(gridTop->viewport()->mapToGlobal(at));
    });
}

// The payers of the dictionary, the row's own ticked; made anew at each opening.
QMenu* frmMain_07_Budget::BuildPaidByMenu() {
    mnuPaidBy = new QMenu(QStringLiteral("Paid By"), this);
    mnuPaidBy->setObjectName(QStringLiteral("mnuPaidByMaster"));
    connect(mnuPaidBy, &QMenu::aboutToShow, this, [this] {
        mnuPaidBy->clear();
        const clsBUDGET* expense = Grid()->Model()->RecordAt<clsBUDGET>(Grid()->SelectedRow());
        const QList<clsDICT> payers =
            RecordIO::Read([] { return clsDICT(clsDICT::PaidBy).OpenRecords(clsDICT::PaidBy); });
        for (const clsDICT& payer : payers) {
            QAction* item = mnuPaidBy->addAction(payer.TX, this, [this, id = payer.ID] { SetPaidBy(id); });
            item->setObjectName(QStringLiteral("mnuPaidBy_") + payer.ID);
            item->setCheckable(true);
            item->setChecked(expense != nullptr && expense->PAID_BY_ID == payer.ID);
        }
    });
    return mnuPaidBy;
}

QString frmMain_07_Budget::PercentText(double share) {
    return QLocale().toString(share * 100.0, 'f', 2) + QLatin1Char('%');
}

QString frmMain_07_Budget::SelectedCategory() const {
    const qint64 key = gridTop->Model()->KeyAt(gridTop->SelectedRow());
    return key == 0 ? QString() : QString::number(key);
}

void frmMain_07_Budget::SelectCategory(const QString& categoryId) {
    const QModelIndex row = gridTop->Model()->FindRecord(categoryId.isEmpty() ? 0 : categoryId.toLongLong());
    if (row.isValid())
        gridTop->SelectOnly(row);
    else
        gridTop->clearSelection();
}

qint64 frmMain_07_Budget::SelectedExpense() const {
    const QList<qint64> keys = SelectedKeys();
    return keys.size() == 1 ? keys.first() : 0;
}

// The categories and the "Totals" row that closes them, the selection kept.
void frmMain_07_Budget::FillTop() {
    const QString keep = mShownCategory;
    clsBudgetCategorySums whole;
    const bool read = RecordIO::Attempt([&] {
        mSums = clsBUDGET_CATEGORY_DICT::OpenSums();
        whole = clsBudgetCategorySums::WholeBudget(QStringLiteral("0"), QStringLiteral("Totals"));
    });
    {
        clsGridFill fill(*gridTop->Model());
        for (const clsBudgetCategorySums& sums : std::as_const(mSums))
            WriteCategoryRow(fill.Row(sums.BUDGET_CATEGORY_ID.toLongLong()), sums,
                             clsBUDGET_CATEGORY_DICT::GetESTIMATE_PERCENT(sums.Estimate, whole.Estimate));
        if (read) {
            const clsColor link = clsColor::Hyperlink();
            WriteCategoryRow(fill.Row(0), whole, 1.0);
            fill.Look(QColor(link.RedPart(), link.GreenPart(), link.BluePart()), false);
        }
    }
    if (!keep.isEmpty() && gridTop->Model()->FindRecord(keep.toLongLong()).isValid())
        SelectCategory(keep);
    else
        mShownCategory.clear();
    RefreshCharts();
}

void frmMain_07_Budget::RefreshCharts() {
    modBudgetCharts::FillBars(mBars, mSums, mShownCategory);
    modBudgetCharts::FillRing(mRing, mSums, mShownCategory);
}

void frmMain_07_Budget::RefreshTotals() {
    mInfo->LoadBudget();
}

void frmMain_07_Budget::OnCategoryChanged() {
    const QString selected = SelectedCategory();
    if (selected != mShownCategory) {
        mShownCategory = selected;
        RefreshCharts();
        if (Loaded())
            Reload();
    }
    UpdateActions();
}

long frmMain_07_Budget::CountOf(int filterId) const {
    return gApp().TotalBudget(filterId, mShownCategory);
}

int frmMain_07_Budget::FillRows(clsGridFill& fill, int filterId) {
    if (gridTop->Model()->TopRows().empty()) {
        FillTop();
        RefreshTotals();
    }
    QHash<QString, clsMoney> actualOf;
    for (const clsBudgetCategorySums& sums : std::as_const(mSums))
        actualOf.insert(sums.BUDGET_CATEGORY_ID, sums.Actual());
    const QList<clsBUDGET> expenses = clsBUDGET().OpenRecordsByCategory(filterId, mShownCategory);
    for (const clsBUDGET& expense : expenses)
        WriteExpenseRow(fill.Group(expense.BUDGET_CATEGORY_TX).Row(expense.BUDGET_ID.toLongLong()), expense,
                        actualOf.value(expense.BUDGET_CATEGORY_ID));
    return int(expenses.size());
}

void frmMain_07_Budget::Activate(qint64 key) {
    OpenExpense(QString::number(key));
}

void frmMain_07_Budget::UpdateActions() {
    const bool category = !SelectedCategory().isEmpty();
    ActionLink(EditCategory)->setEnabled(category);
    ActionLink(DeleteCategory)->setEnabled(category);
    const bool expense = SelectedExpense() != 0;
    ActionLink(EditExpense)->setEnabled(expense);
    ActionLink(DeleteExpense)->setEnabled(expense);
}

void frmMain_07_Budget::showEvent(QShowEvent* event) {
    usrListPage::showEvent(event);
    if (!mSplitterRestored) {
        mSplitterRestored = true;
        RestoreSplitter();
    }
    const QString filter =
        CurrentFilter() > 0 ? QStringLiteral(">") + FilterCaption(CurrentFilter()) : QString();
    emit Breadcrumb(QStringLiteral("Budget") + filter);
}

void frmMain_07_Budget::Leaving() {
    StoreSplitter();
}

void frmMain_07_Budget::RestoreSplitter() {
    const int stored = gRegistry()
                           .GetSetting(FormRegistryKey(FormName()), QStringLiteral("Splitter"),
                                       QString::number(kSplitterDefault))
                           .toInt();
    const double twipsPerPixel = modFormPlace::TwipsPerPixel(this);
    const int top = int(std::max(stored, kSplitterTop) / twipsPerPixel);
    const int whole = std::max(imgSplitter->height(), top + 200);
    imgSplitter->setSizes({top, whole - top});
}

void frmMain_07_Budget::StoreSplitter() {
    if (!mSplitterRestored)
        return;
    const int twips = int(imgSplitter->sizes().value(0) * modFormPlace::TwipsPerPixel(this));
    gRegistry().SaveSetting(FormRegistryKey(FormName()), QStringLiteral("Splitter"),
                            QString::number(std::max(twips, kSplitterTop)));
}

void frmMain_07_Budget::OpenExpense(const QString& budgetId) {
    frmBudget editor(budgetId, mShownCategory.isEmpty() ? QStringLiteral("0") : mShownCategory, this);
    connect(&editor, &frmEditorBase::Added, this, &frmMain_07_Budget::mfrmBudget_Changed);
    connect(&editor, &frmEditorBase::Updated, this, &frmMain_07_Budget::mfrmBudget_Changed);
    editor.exec();
}

void frmMain_07_Budget::OpenCategory(const QString& categoryId) {
    frmBudgetCategory editor(categoryId, this);
    connect(&editor, &frmEditorBase::Added, this, &frmMain_07_Budget::mfrmBudgetCategory_Changed);
    connect(&editor, &frmEditorBase::Updated, this, &frmMain_07_Budget::mfrmBudgetCategory_Changed);
    editor.exec();
}

void frmMain_07_Budget::mfrmBudget_Changed(const QString& budgetId) {
    FillTop();
    RefreshTotals();
    Reload();
    GridSelectByKey(Grid(), budgetId.toLongLong());
}

void frmMain_07_Budget::mfrmBudgetCategory_Changed(const QString& categoryId) {
    Q_UNUSED(categoryId);
    FillTop();
    RefreshTotals();
    Reload();
}

void frmMain_07_Budget::mfrmBudget_OptionsUpdated() {
    const qint64 keep = SelectedExpense();
    FillTop();
    Reload();
    if (keep != 0)
        GridSelectByKey(Grid(), keep);
}

void frmMain_07_Budget::DeleteExpenseRow() {
    const qint64 key = SelectedExpense();
    if (key == 0 || ShowMessage(QStringLiteral("Delete budget expense?"), Msg::YesNo | Msg::Question,
                                QStringLiteral("Delete")) != Msg::Yes)
        return;
    if (!RecordIO::Attempt([key] { clsBUDGET().Delete(QString::number(key)); }))
        return;
    FillTop();
    RefreshTotals();
    Reload();
}

// The row above the deleted one is selected afterwards, the first row when it was the first.
void frmMain_07_Budget::DeleteCategoryRow() {
    const QString id = SelectedCategory();
    if (id.isEmpty())
        return;
    const QModelIndex row = gridTop->SelectedRow();
    const QString name = gridTop->Model()->RowAt(row)->Cell(TopColumn::CATEGORY_TX);
    if (ShowMessage(QStringLiteral("Delete budget category ") + name +
                        QStringLiteral(" and all related expenses?"),
                    Msg::YesNo | Msg::Question, QStringLiteral("Delete")) != Msg::Yes)
        return;
    if (!RecordIO::Attempt([&id] { clsBUDGET_CATEGORY_DICT().Delete(id); }))
        return;
    Grid()->Model()->Clear();
    const int above = std::max(0, row.row() - 1);
    mShownCategory.clear();
    FillTop();
    gridTop->SelectOnly(gridTop->Model()->index(above, 0));
    RefreshTotals();
    Reload();
}

void frmMain_07_Budget::SetPaidBy(const QString& paidById) {
    const qint64 key = SelectedExpense();
    clsBUDGET expense;
    const bool saved = key != 0 && RecordIO::Attempt([&] {
                           if (!expense.OpenRecord(QString::number(key)))
                               return;
                           expense.PAID_BY_ID = paidById;
                           expense.Save(false);
                           expense.OpenRecord(expense.BUDGET_ID);
                       });
    const QModelIndex row = RowOfKey(key);
    if (!saved || !row.isValid() || expense.BUDGET_ID.isEmpty())
        return;
    clsMoney actual;
    for (const clsBudgetCategorySums& sums : std::as_const(mSums))
        if (sums.BUDGET_CATEGORY_ID == expense.BUDGET_CATEGORY_ID)
            actual = sums.Actual();
    Grid()->Model()->Rewrite(row, [&](clsGridCells& cells) { WriteExpenseRow(cells, expense, actual); });
    RefreshPanel();
}
