#include "planning/ui/frmMain_06_Checklist.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsColor.h"
#include "core/modGeneral.h"
#include "planning/clsEVENT.h"
#include "planning/clsTASK.h"
#include "planning/ui/PlanningIcons.h"
#include "planning/ui/frmTask.h"
#include "reports/clsReportCatalogue.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/controls/usrSearch.h"
#include "shell/grid/modGrid.h"
#include "shell/modPages.h"

#include <QHash>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QTimer>
#include <algorithm>

namespace {

using Column = frmMain_06_Checklist::Column;

QList<clsGridColumn> TaskColumns() {
    QList<clsGridColumn> columns = {
        clsGridColumn(QStringLiteral("TASK_ICON"), QString(), 20).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("CHECK"), QString(), 20).OfKind(GridColumnKind::Icon),
        clsGridColumn(QStringLiteral("SORT_ORDER_NB"), QStringLiteral("#"), 35)
            .OfKind(GridColumnKind::Number),
        clsGridColumn(QStringLiteral("TASK_NM"), QStringLiteral("Task"), 550).StoreWidth(),
        clsGridColumn(QStringLiteral("TASK_GROUP_TX"), QString(), 10).NeverShown(),
        clsGridColumn(QStringLiteral("DUE_DT"), QStringLiteral("Due Date"), 140).OfKind(GridColumnKind::Date),
    };
    Q_ASSERT(columns.size() == Column::ColumnCount);
    return columns;
}

bool IsDone(const clsTASK& task) {
    return task.COMPLETED_FG == QLatin1String("Y");
}

// A task's row, on fill and on refresh alike: a completed task is ticked and struck through in grey.
clsGridCells& WriteRow(clsGridCells& cells, const clsTASK& task) {
    const bool done = IsDone(task);
    const clsColor gray = clsColor::GrayStrikeThroughText();
    return cells.Icon(Column::TASK_ICON, PlanningIcons::Task)
        .Icon(Column::CHECK, done ? PlanningIcons::Ticked : PlanningIcons::Unticked)
        .Number(Column::SORT_ORDER_NB, task.SORT_ORDER_NB)
        .Set(Column::TASK_NM, task.TASK_NM)
        .Set(Column::TASK_GROUP_TX, task.TASK_GROUP_TX)
        .Date(Column::DUE_DT, ParseDateTimeText(task.DUE_DT).date())
        .Notes(task.NOTES_TX)
        .Look(done ? QColor(gray.RedPart(), gray.GreenPart(), gray.BluePart()) : QColor(), done)
        .Keep(task);
}

QString GroupText(const clsTASK& task) {
    return task.TASK_GROUP_TX.isEmpty() ? QStringLiteral("(no time frame)") : task.TASK_GROUP_TX;
}

} // namespace

frmMain_06_Checklist::frmMain_06_Checklist(QWidget* parent)
    : usrListPage(QStringLiteral("frmMain_06_Checklist"), parent) {
    SetRecordNoun(QStringLiteral("task"));
    SetEmptyText(QStringLiteral("No tasks yet — add the first one with \"Add new task\"."),
                 QStringLiteral("No tasks match."));
    SetFilterEntries({{clsTASK::AllTasks, QStringLiteral("All Tasks")},
                      {clsTASK::Open, QStringLiteral("Open")},
                      {clsTASK::Completed, QStringLiteral("Completed")},
                      {clsTASK::Current, QStringLiteral("Current")}});
    Grid()->Model()->SetImages(PlanningIcons::All());
    SetColumns(TaskColumns());
    auto* hint = new QLabel(QStringLiteral("Press Ctrl+Up or Ctrl+Down to change sort order"), this);
    hint->setObjectName(QStringLiteral("lblHint"));
    hint->setWordWrap(true);
    hint->setForegroundRole(QPalette::PlaceholderText);
    AddPanelWidget(hint);
    BuildActions();
    BuildMenu();

    tmrSort = new QTimer(this);
    tmrSort->setObjectName(QStringLiteral("tmrSort"));
    tmrSort->setSingleShot(true);
    tmrSort->setInterval(kSortDelayMs);
    connect(tmrSort, &QTimer::timeout, this, &frmMain_06_Checklist::WriteOrder);
    // A reload (a filter, F5, an added task) must not lose an order that is still waiting.
    connect(Grid()->Model(), &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        if (tmrSort->isActive())
            WriteOrderOnly();
    });
    connect(Grid(), &QAbstractItemView::clicked, this, &frmMain_06_Checklist::OnGridClicked);

    AddShortcut(QKeySequence::New, [this] { OpenEditor(QString()); });
    AddShortcut(QKeySequence::Delete, [this] { DeleteSelected(); });
    AddShortcut(QKeySequence(Qt::CTRL | Qt::Key_Up), [this] { MoveSelected(-1); });
    AddShortcut(QKeySequence(Qt::CTRL | Qt::Key_Down), [this] { MoveSelected(+1); });
    // Space ticks the selected task as a click on its box does; only in the list, so the search takes blanks.
    auto* tick = new QShortcut(QKeySequence(Qt::Key_Space), Grid());
    tick->setContext(Qt::WidgetShortcut);
    connect(tick, &QShortcut::activated, this, [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            ToggleCompleted(keys.first());
    });
    ResetStoredStateOnce();
}

void frmMain_06_Checklist::BuildActions() {
    AddAction(AddTask, QStringLiteral("Add new task"), [this] { OpenEditor(QString()); });
    AddAction(EditTask, QStringLiteral("Edit task"), [this] {
        const QList<qint64> keys = SelectedKeys();
        if (keys.size() == 1)
            OpenEditor(QString::number(keys.first()));
    });
    AddAction(DeleteTask, QStringLiteral("Delete task"), [this] { DeleteSelected(); });
    AddAction(PrintReports, QStringLiteral("Print reports"),
              [this] { modPages::OpenReports(this, clsReportCatalogue::Checklist, CurrentFilter()); });
    AddReportsFolderAction(OpenReportsFolder);
    AddAction(RefreshDueDates, QStringLiteral("Refresh Due Dates"), [this] { cmdRefreshDueDates_Click(); });
}

void frmMain_06_Checklist::BuildMenu() {
    mnuHiddenRoot = new QMenu(this);
    mnuHiddenRoot->setObjectName(QStringLiteral("mnuHiddenRoot"));
    AddActionItems(mnuHiddenRoot, {AddTask, EditTask, DeleteTask});
    mnuHiddenRoot->addSeparator();
    AddActionItems(mnuHiddenRoot, {RefreshDueDates});
    ShowNotesAsRowText(mnuHiddenRoot);
    SetRowMenu(mnuHiddenRoot);
}

// ---- The grid ----------------------------------------------------------------------------------------

long frmMain_06_Checklist::CountOf(int filterId) const {
    return gApp().TotalTasks(filterId);
}

int frmMain_06_Checklist::FillRows(clsGridFill& fill, int filterId) {
    QList<clsTASK> tasks = RecordIO::Read([filterId] { return clsTASK().OpenRecords(filterId); });
    // Inside its time frame a task stands by its number.
    std::stable_sort(tasks.begin(), tasks.end(), [](const clsTASK& a, const clsTASK& b) {
        const int groupA = a.TASK_GROUP_ID.toInt();
        const int groupB = b.TASK_GROUP_ID.toInt();
        return groupA != groupB ? groupA < groupB
                                : a.SORT_ORDER_NB.toLongLong() < b.SORT_ORDER_NB.toLongLong();
    });
    for (const clsTASK& task : tasks)
        WriteRow(fill.Group(GroupText(task)).Row(task.TASK_ID.toLongLong()), task);
    emit Breadcrumb(filterId > 0 ? QStringLiteral("Checklist>") + FilterCaption(filterId)
                                 : QStringLiteral("Checklist"));
    return static_cast<int>(tasks.size());
}

void frmMain_06_Checklist::Activate(qint64 key) {
    OpenEditor(QString::number(key));
}

void frmMain_06_Checklist::UpdateActions() {
    const bool one = SelectedKeys().size() == 1;
    ActionLink(EditTask)->setEnabled(one);
    ActionLink(DeleteTask)->setEnabled(one);
}

void frmMain_06_Checklist::OnGridClicked(const QModelIndex& index) {
    const QModelIndex source = Grid()->ToSource(index);
    if (source.column() != Column::CHECK)
        return;
    const qint64 key = Grid()->Model()->KeyAt(source);
    if (key != 0)
        ToggleCompleted(key);
}

// The row stays where it is, even under a filter it no longer meets, until the next load. It is painted
// ticked before the database is written (a write waits for the disk), and set back if the write fails.
bool frmMain_06_Checklist::ToggleCompleted(qint64 key) {
    const QModelIndex row = RowOfKey(key);
    const clsTASK* shown = row.isValid() ? Grid()->Model()->RecordAt<clsTASK>(row) : nullptr;
    if (shown == nullptr)
        return false;
    const clsTASK before = *shown;
    clsTASK task = before;
    task.COMPLETED_FG = IsDone(before) ? QStringLiteral("N") : QStringLiteral("Y");
    Grid()->Model()->Rewrite(row, [&task](clsGridCells& cells) { WriteRow(cells, task); });
    Grid()->viewport()->repaint();
    const bool written = RecordIO::Attempt([&task] { task.Update_COMPLETED_FG(); });
    if (!written)
        Grid()->Model()->Rewrite(row, [&before](clsGridCells& cells) { WriteRow(cells, before); });
    RefreshPanel();
    return written;
}

// ---- The couple's order --------------------------------------------------------------------------------

bool frmMain_06_Checklist::MoveSelected(int step) {
    // A search hides rows, and a move past a hidden row would not be the move the user sees.
    if (!SearchBox()->Text().isEmpty() || SelectedKeys().size() != 1)
        return false;
    clsGridModel* model = Grid()->Model();
    clsGridRow* moved = model->RowAt(RowOfKey(SelectedKeys().first()));
    if (moved == nullptr || moved->Parent == nullptr)
        return false;
    const int to = moved->Row + step;
    if (to < 0 || to >= static_cast<int>(moved->Parent->Children.size()))
        return false;
    clsGridRow* neighbour = moved->Parent->Children[static_cast<size_t>(to)].get();
    if (!(step < 0 ? GridMoveRowUp(Grid()) : GridMoveRowDown(Grid())))
        return false;
    SwapNumbers(model->IndexOf(moved), model->IndexOf(neighbour));
    tmrSort->start();
    return true;
}

void frmMain_06_Checklist::SwapNumbers(const QModelIndex& first, const QModelIndex& second) {
    const clsTASK* a = Grid()->Model()->RecordAt<clsTASK>(first);
    const clsTASK* b = Grid()->Model()->RecordAt<clsTASK>(second);
    if (a == nullptr || b == nullptr)
        return;
    clsTASK taskA = *a;
    clsTASK taskB = *b;
    std::swap(taskA.SORT_ORDER_NB, taskB.SORT_ORDER_NB);
    Grid()->Model()->Rewrite(first, [&taskA](clsGridCells& cells) { WriteRow(cells, taskA); });
    Grid()->Model()->Rewrite(second, [&taskB](clsGridCells& cells) { WriteRow(cells, taskB); });
}

QStringList frmMain_06_Checklist::ShownKeys() const {
    QStringList keys;
    Grid()->Model()->ForEachRow([&keys](const clsGridRow& row) {
        if (!row.IsGroup && row.ItemData != 0)
            keys << QString::number(row.ItemData);
    });
    return keys;
}

void frmMain_06_Checklist::WriteOrder() {
    const QStringList order = WriteOrderOnly();
    if (!order.isEmpty())
        ShowNumbers(order);
}

// The rows are about to go (a reload): the order is written, and nothing is shown of it.
QStringList frmMain_06_Checklist::WriteOrderOnly() {
    tmrSort->stop();
    const QStringList keys = ShownKeys();
    QStringList order;
    if (!keys.isEmpty())
        RecordIO::Attempt([&] { order = clsTASK::WriteShownOrder(keys); });
    return order;
}

// The "#" of every row as written.
void frmMain_06_Checklist::ShowNumbers(const QStringList& order) {
    QHash<qint64, QString> numbers;
    for (int i = 0; i < order.size(); ++i)
        numbers.insert(order[i].toLongLong(), QString::number(i + 1));
    clsGridModel* model = Grid()->Model();
    QList<QModelIndex> stale;
    model->ForEachRow([&](const clsGridRow& row) {
        if (row.IsGroup || !numbers.contains(row.ItemData))
            return;
        const clsTASK* task = std::any_cast<clsTASK>(&row.Record);
        if (task != nullptr && task->SORT_ORDER_NB != numbers.value(row.ItemData))
            stale << model->IndexOf(&row);
    });
    for (const QModelIndex& index : stale) {
        clsTASK task = *model->RecordAt<clsTASK>(index);
        task.SORT_ORDER_NB = numbers.value(task.TASK_ID.toLongLong());
        model->Rewrite(index, [&task](clsGridCells& cells) { WriteRow(cells, task); });
    }
}

void frmMain_06_Checklist::Leaving() {
    if (tmrSort->isActive())
        WriteOrder();
    usrListPage::Leaving();
}

void frmMain_06_Checklist::hideEvent(QHideEvent* event) {
    if (tmrSort->isActive())
        WriteOrder();
    usrListPage::hideEvent(event);
}

// ---- Commands --------------------------------------------------------------------------------------------

void frmMain_06_Checklist::DeleteSelected() {
    const QList<qint64> keys = SelectedKeys();
    if (keys.size() != 1)
        return;
    if (ShowMessage(QStringLiteral("Delete Task?"), Msg::YesNo | Msg::Question, QStringLiteral("Delete")) !=
        Msg::Yes)
        return;
    const QString id = QString::number(keys.first());
    const QStringList shown = ShownKeys();
    tmrSort->stop();
    RecordIO::Attempt([&] { clsTASK::DeleteKeepingOrder(id, shown); });
    Reload();
}

void frmMain_06_Checklist::cmdRefreshDueDates_Click() {
    const QString wedding = gWeddingEvent().EVENT_DT_DateFormat();
    if (wedding.isEmpty()) {
        ShowMessage(
            QStringLiteral("There is no wedding date yet. Set it on the Events page, then refresh the due "
                           "dates."),
            Msg::Exclamation);
        return;
    }
    if (ShowMessage(QStringLiteral("Refresh All Due Dates based on wedding date of: ") + wedding +
                        QLatin1Char('?'),
                    Msg::YesNo | Msg::Question, ProgramTitle()) != Msg::Yes)
        return;
    if (RecordIO::Attempt([] { clsTASK().RefreshDueDates(); }))
        Reload();
}

// ---- The editor ------------------------------------------------------------------------------------------

void frmMain_06_Checklist::OpenEditor(const QString& taskId) {
    frmTask editor(taskId, this);
    connect(&editor, &frmEditorBase::Added, this, &frmMain_06_Checklist::mfrmTask_Added);
    connect(&editor, &frmEditorBase::Updated, this, &frmMain_06_Checklist::mfrmTask_Updated);
    editor.exec();
}

void frmMain_06_Checklist::mfrmTask_Added(const QString& taskId) {
    Reload();
    GridSelectByKey(Grid(), taskId.toLongLong());
}

// A task moved to another time frame goes into that group: the list is loaded again.
void frmMain_06_Checklist::mfrmTask_Updated(const QString& taskId) {
    const QModelIndex row = RowOfKey(taskId.toLongLong());
    const clsTASK* shown = row.isValid() ? Grid()->Model()->RecordAt<clsTASK>(row) : nullptr;
    clsTASK task;
    if (shown == nullptr || !RecordIO::Read([&] { return task.OpenRecord(taskId); }))
        return;
    if (task.TASK_GROUP_ID != shown->TASK_GROUP_ID) {
        Reload();
        GridSelectByKey(Grid(), taskId.toLongLong());
        return;
    }
    Grid()->Model()->Rewrite(row, [&task](clsGridCells& cells) { WriteRow(cells, task); });
    RefreshPanel();
}
