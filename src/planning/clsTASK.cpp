#include "planning/clsTASK.h"

#include "core/modGeneral.h"
#include "planning/clsEVENT.h"
#include "planning/modPlanningSql.h"

#include <QSet>
#include <array>

namespace {

// Days before the wedding at which each time frame falls due (its due date), and the days left from
// which it counts as current. The two differ on purpose: a frame becomes current somewhat after its
// due distance has been reached.
constexpr std::array<int, 11> kDueDaysBefore = {365, 300, 180, 120, 60, 30, 21, 7, 1, 0, -1};
constexpr std::array<int, 9> kCurrentWhenMoreThan = {365, 270, 150, 90, 60, 30, 14, 1, 0};

QDate WeddingDate() {
    return ParseDateTimeText(gWeddingEvent().EVENT_DT).date();
}

const QString kChecklistOrder =
    QStringLiteral(" ORDER BY TASK_GROUP_DICT.TASK_GROUP_ID, TASK.DUE_DT, TASK.SORT_ORDER_NB");

} // namespace

const RecordTable<clsTASK>& clsTASK::Table() {
    static const RecordTable<clsTASK> table{"TASK",
                                            "TASK_ID",
                                            {{"TASK_ID", &clsTASK::TASK_ID},
                                             {"TASK_NM", &clsTASK::TASK_NM},
                                             {"TASK_GROUP_ID", &clsTASK::TASK_GROUP_ID},
                                             {"DUE_DT", &clsTASK::DUE_DT},
                                             {"COMPLETED_FG", &clsTASK::COMPLETED_FG},
                                             {"NOTES_TX", &clsTASK::NOTES_TX},
                                             {"SORT_ORDER_NB", &clsTASK::SORT_ORDER_NB}}};
    return table;
}

const RecordTable<clsTASK>& clsTASK::ReadTable() {
    static const RecordTable<clsTASK> table = [] {
        RecordTable<clsTASK> read = Table();
        read.Fields.push_back({"TASK_GROUP_TX", &clsTASK::TASK_GROUP_TX});
        return read;
    }();
    return table;
}

QString clsTASK::SelectSql() {
    return QStringLiteral("SELECT ") + QualifiedColumns(Table()) +
           QStringLiteral(", TASK_GROUP_DICT.TASK_GROUP_TX FROM TASK_GROUP_DICT RIGHT JOIN TASK ON "
                          "TASK_GROUP_DICT.TASK_GROUP_ID = TASK.TASK_GROUP_ID ");
}

QString clsTASK::WhereSql(int filter, QVariantList& values) {
    switch (filter) {
    case Open:
        return QStringLiteral("WHERE TASK.COMPLETED_FG = 'N'");
    case Completed:
        return QStringLiteral("WHERE TASK.COMPLETED_FG = 'Y'");
    case Current:
        values << MIN_TASK_GROUP_ID().toInt();
        return QStringLiteral("WHERE TASK.COMPLETED_FG = 'N' AND TASK.TASK_GROUP_ID <= ?");
    default:
        return {};
    }
}

QString clsTASK::DUE_DT_Format() const {
    return FormatDateTime(ParseDateTimeText(DUE_DT), QLatin1String(kDateFormat));
}

int clsTASK::MinTaskGroupForDaysLeft(long long daysLeft) {
    for (size_t id = 0; id < kCurrentWhenMoreThan.size(); ++id) {
        if (daysLeft > kCurrentWhenMoreThan[id])
            return static_cast<int>(id);
    }
    return daysLeft == 0 ? 9 : 10;
}

QString clsTASK::MIN_TASK_GROUP_ID() {
    const QDate wedding = WeddingDate();
    // Without a wedding date nothing is near yet: only the first frame is current.
    if (!wedding.isValid())
        return QStringLiteral("0");
    return QString::number(MinTaskGroupForDaysLeft(Now().date().daysTo(wedding)));
}

int clsTASK::DaysBeforeWedding(int taskGroupId) {
    if (taskGroupId < 0 || taskGroupId >= static_cast<int>(kDueDaysBefore.size()))
        return 0;
    return kDueDaysBefore[static_cast<size_t>(taskGroupId)];
}

QString clsTASK::CalculateDueDate(const clsTASK& task, const QDate& weddingDate) {
    if (!weddingDate.isValid())
        return {};
    bool isNumber = false;
    const int group = task.TASK_GROUP_ID.trimmed().toInt(&isNumber);
    return FormatDate(weddingDate.addDays(-DaysBeforeWedding(isNumber ? group : -1)));
}

QString clsTASK::CalculateDueDate(const clsTASK& task) {
    return CalculateDueDate(task, WeddingDate());
}

void clsTASK::Delete(const QString& taskId) {
    RecordIO::Delete(QStringLiteral("TASK"), QStringLiteral("TASK_ID"), taskId);
}

long clsTASK::GetTotal(int filter) const {
    QVariantList values;
    const QString where = WhereSql(filter, values);
    return RecordIO::Count(QStringLiteral("SELECT COUNT(*) AS CNT FROM TASK ") + where, values);
}

bool clsTASK::OpenRecord(const QString& taskId) {
    if (taskId.isEmpty())
        return false;
    return RecordIO::OpenFirst(*this, ReadTable(), SelectSql() + QStringLiteral("WHERE TASK.TASK_ID = ?"),
                               {taskId});
}

QList<clsTASK> clsTASK::OpenRecords(int filter) const {
    QVariantList values;
    QString sql = SelectSql() + WhereSql(filter, values);
    sql += filter == ByDueDate ? QStringLiteral(" ORDER BY TASK.DUE_DT, TASK.TASK_NM COLLATE NOCASE")
                               : kChecklistOrder;
    return RecordIO::ReadAll(ReadTable(), sql, values);
}

void clsTASK::Patch_7_Apply() {
    if (gDB().FieldExists(QStringLiteral("TASK"), QStringLiteral("SORT_ORDER_NB")))
        return;
    clsTransaction tx(gDB());
    gDB().Execute(QStringLiteral("ALTER TABLE TASK ADD COLUMN SORT_ORDER_NB INTEGER"));
    const clsRecordset rs = gDB().Execute(
        SelectSql() +
        QStringLiteral("ORDER BY TASK_GROUP_DICT.TASK_GROUP_ID, TASK.DUE_DT, TASK.TASK_NM COLLATE NOCASE"));
    for (int row = 0; row < rs.RowCount(); ++row)
        gDB().Execute(QStringLiteral("UPDATE TASK SET SORT_ORDER_NB = ? WHERE TASK_ID = ?"),
                      {row + 1, rs.Value(row, QStringLiteral("TASK_ID"))});
    tx.Commit();
}

int clsTASK::RefreshDueDates() {
    const QDate wedding = WeddingDate();
    if (!wedding.isValid())
        return 0;
    clsTransaction tx(gDB());
    const clsRecordset rs = gDB().Execute(SelectSql() + kChecklistOrder);
    const std::vector<int> columns = RecordIO::FieldColumns(rs, ReadTable());
    int changed = 0;
    for (int row = 0; row < rs.RowCount(); ++row) {
        clsTASK task;
        RecordIO::Fill(task, rs, row, ReadTable(), columns);
        const QString due = CalculateDueDate(task, wedding);
        if (task.DUE_DT_Format() == due)
            continue;
        task.DUE_DT = due;
        RecordIO::Save(task, Table(), false);
        ++changed;
    }
    tx.Commit();
    return changed;
}

void clsTASK::Renumber() {
    const clsRecordset rs = gDB().Execute(SelectSql() + kChecklistOrder);
    for (int row = 0; row < rs.RowCount(); ++row)
        gDB().Execute(QStringLiteral("UPDATE TASK SET SORT_ORDER_NB = ? WHERE TASK_ID = ?"),
                      {row + 1, rs.Value(row, QStringLiteral("TASK_ID"))});
}

void clsTASK::Save(bool isNew) {
    clsTASK task = *this;
    clsTransaction tx(gDB());
    if (isNew && task.SORT_ORDER_NB.isEmpty())
        task.SORT_ORDER_NB = RecordIO::NextID(QStringLiteral("TASK"), QStringLiteral("SORT_ORDER_NB"));
    RecordIO::Save(task, Table(), isNew);
    if (isNew) {
        Renumber();
        task.SORT_ORDER_NB =
            gDB()
                .Execute(QStringLiteral("SELECT SORT_ORDER_NB FROM TASK WHERE TASK_ID = ?"), {task.TASK_ID})
                .Scalar();
    }
    tx.Commit();
    *this = task;
}

void clsTASK::Update_COMPLETED_FG() {
    RecordIO::Run(QStringLiteral("UPDATE TASK SET COMPLETED_FG = ? WHERE TASK_ID = ?"),
                  {COMPLETED_FG, TASK_ID});
}

void clsTASK::UpdateSort(const QString& taskId, const QString& sortOrder) {
    RecordIO::Run(QStringLiteral("UPDATE TASK SET SORT_ORDER_NB = ? WHERE TASK_ID = ?"), {sortOrder, taskId});
}

void clsTASK::WriteSortOrder(const QStringList& taskIds) {
    clsTransaction tx(gDB());
    for (int i = 0; i < taskIds.size(); ++i)
        UpdateSort(taskIds[i], QString::number(i + 1));
    tx.Commit();
}

QStringList clsTASK::WriteShownOrder(const QStringList& shownInOrder) {
    clsTransaction tx(gDB());
    const clsRecordset rs = gDB().Execute(
        QStringLiteral("SELECT TASK_ID, SORT_ORDER_NB FROM TASK ORDER BY SORT_ORDER_NB, TASK_ID"));
    QStringList stored;
    for (int row = 0; row < rs.RowCount(); ++row)
        stored << rs.Value(row, 0);
    // Keys of tasks that are gone, and a key given twice, take no place.
    const QSet<QString> existing(stored.cbegin(), stored.cend());
    QStringList shown;
    QSet<QString> shownSet;
    for (const QString& id : shownInOrder) {
        if (existing.contains(id) && !shownSet.contains(id)) {
            shown << id;
            shownSet.insert(id);
        }
    }
    QStringList order = stored;
    auto next = shown.cbegin();
    for (QString& id : order)
        if (shownSet.contains(id))
            id = *next++;
    for (int i = 0; i < order.size(); ++i) {
        if (stored[i] != order[i] || rs.Value(i, 1) != QString::number(i + 1))
            UpdateSort(order[i], QString::number(i + 1));
    }
    tx.Commit();
    return order;
}

QStringList clsTASK::DeleteKeepingOrder(const QString& taskId, const QStringList& shownInOrder) {
    clsTransaction tx(gDB());
    clsTASK().Delete(taskId);
    QStringList shown = shownInOrder;
    shown.removeAll(taskId);
    const QStringList order = WriteShownOrder(shown);
    tx.Commit();
    return order;
}
