#pragma once

#include "core/RecordIO.h"

#include <QDate>
#include <QList>
#include <QString>

// One task of the wedding checklist. Its time frame (TASK_GROUP_DICT, 0 "1 year+" to 10 "after the
// wedding") lies a fixed number of days before the wedding: that gives the task its due date, and the
// frames whose distance has been reached make up the "Current" tasks.
class clsTASK {
public:
    QString TASK_ID;
    QString TASK_NM;
    QString TASK_GROUP_ID;
    QString TASK_GROUP_TX; // from the join only; never saved
    QString DUE_DT;
    QString COMPLETED_FG; // 'Y' or 'N'
    QString NOTES_TX;
    QString SORT_ORDER_NB;

    // The filters of the checklist page and its reports.
    enum Filter : int { AllTasks = 0, Open = 1, Completed = 2, Current = 3, ByDueDate = 4 };

    static const RecordTable<clsTASK>& Table();

    QString DUE_DT_Format() const;
    // The latest time frame that is current today, by the days left to the wedding.
    static QString MIN_TASK_GROUP_ID();
    // The same for a given number of days left.
    static int MinTaskGroupForDaysLeft(long long daysLeft);
    // Days before the wedding at which a time frame falls due; 0 (the wedding day) outside 0..10.
    static int DaysBeforeWedding(int taskGroupId);

    // Every operation below that reads or writes throws clsDbError when the database refuses.

    void Delete(const QString& taskId);
    long GetTotal(int filter) const;
    bool OpenRecord(const QString& taskId);
    QList<clsTASK> OpenRecords(int filter) const;
    // Adds SORT_ORDER_NB to an older TASK table and numbers the tasks in checklist order.
    static void Patch_7_Apply();
    // The due date of a task from the wedding date, "dd-mmm-yyyy"; empty while no wedding date is set.
    static QString CalculateDueDate(const clsTASK& task);
    static QString CalculateDueDate(const clsTASK& task, const QDate& weddingDate);
    // Sets every task's due date from its time frame, hand-set and completed ones alike; all or nothing.
    // The number of tasks whose date changed. Without a wedding date nothing changes.
    int RefreshDueDates();
    // An insert renumbers all tasks afterwards, so that the new one falls into place. A refused save
    // leaves the object as it was.
    void Save(bool isNew);
    void Update_COMPLETED_FG();
    static void UpdateSort(const QString& taskId, const QString& sortOrder);
    // Writes 1, 2, 3 ... in the order of the list given (the order shown on the page); all or nothing.
    static void WriteSortOrder(const QStringList& taskIds);
    // Writes the order of the tasks a page shows (all of them, or those of a filter): the tasks shown
    // take the places the shown tasks had, in the order given, and the tasks not shown keep theirs, so
    // the numbers stay 1, 2, 3 ... over the whole checklist. The keys of all tasks in their new order;
    // all or nothing.
    static QStringList WriteShownOrder(const QStringList& shownInOrder);
    // Deletes a task and writes the order of the tasks still shown, in one go.
    static QStringList DeleteKeepingOrder(const QString& taskId, const QStringList& shownInOrder);

private:
    static const RecordTable<clsTASK>& ReadTable();
    static QString SelectSql();
    static QString WhereSql(int filter, QVariantList& values);
    static void Renumber();
};
