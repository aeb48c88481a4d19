#include "PlanningTestTools.h"
#include "planning/ChecklistSeed.h"
#include "planning/clsTASK.h"

#include <QtTest>
#include <memory>

class tst_clsTASK : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

    static clsTASK NewTask(const QString& name, const QString& group, const QString& due = QString(),
                           const QString& completed = QStringLiteral("N")) {
        clsTASK task;
        task.TASK_NM = name;
        task.TASK_GROUP_ID = group;
        task.DUE_DT = due;
        task.COMPLETED_FG = completed;
        return task;
    }
    static void FixToday(const QDate& today) { SetNowForTesting(QDateTime(today, QTime(9, 30))); }
    static QStringList SortNumbers() {
        QStringList numbers;
        const clsRecordset rs =
            gDB().Execute(QStringLiteral("SELECT SORT_ORDER_NB FROM TASK ORDER BY SORT_ORDER_NB"));
        for (int i = 0; i < rs.RowCount(); ++i)
            numbers << rs.Value(i, 0);
        return numbers;
    }
    static QStringList Dense(int count) {
        QStringList numbers;
        for (int i = 1; i <= count; ++i)
            numbers << QString::number(i);
        return numbers;
    }

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void dueDateFromTheWeddingDate_data() {
        QTest::addColumn<QString>("wedding");
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("due");
        const QStringList june = {"05-Jun-2026", "09-Aug-2026", "07-Dec-2026", "05-Feb-2027",
                                  "06-Apr-2027", "06-May-2027", "15-May-2027", "29-May-2027",
                                  "04-Jun-2027", "05-Jun-2027", "06-Jun-2027"};
        for (int group = 0; group <= 10; ++group)
            QTest::addRow("June wedding, frame %d", group)
                << "05-Jun-2027 3:00 PM" << QString::number(group) << june[group];
        QTest::newRow("frame below 0 falls on the wedding day") << "05-Jun-2027"
                                                                << "-1"
                                                                << "05-Jun-2027";
        QTest::newRow("no frame falls on the wedding day") << "05-Jun-2027"
                                                           << ""
                                                           << "05-Jun-2027";
        QTest::newRow("leap day, a year before") << "29-Feb-2028"
                                                 << "0"
                                                 << "01-Mar-2027";
        QTest::newRow("leap day, the day before") << "29-Feb-2028"
                                                  << "8"
                                                  << "28-Feb-2028";
        QTest::newRow("leap day, the day after") << "29-Feb-2028"
                                                 << "10"
                                                 << "01-Mar-2028";
        QTest::newRow("new year's eve, the day after") << "31-Dec-2027 11:00 PM"
                                                       << "10"
                                                       << "01-Jan-2028";
        QTest::newRow("new year's eve, a year before") << "31-Dec-2027"
                                                       << "0"
                                                       << "31-Dec-2026";
        QTest::newRow("no wedding date, no due date") << ""
                                                      << "3"
                                                      << "";
    }
    void dueDateFromTheWeddingDate() {
        QFETCH(QString, wedding);
        QFETCH(QString, group);
        QFETCH(QString, due);
        PlanningDatabase::SetWeddingDate(wedding);
        QCOMPARE(clsTASK::CalculateDueDate(NewTask("t", group)), due);
    }

    void currentFrameByDaysLeft_data() {
        QTest::addColumn<int>("daysLeft");
        QTest::addColumn<QString>("frame");
        const QList<QPair<int, int>> cases = {{400, 0}, {366, 0}, {365, 1},  {271, 1}, {270, 2}, {151, 2},
                                              {150, 3}, {91, 3},  {90, 4},   {61, 4},  {60, 5},  {31, 5},
                                              {30, 6},  {15, 6},  {14, 7},   {10, 7},  {2, 7},   {1, 8},
                                              {0, 9},   {-1, 10}, {-400, 10}};
        for (const auto& [days, frame] : cases)
            QTest::addRow("%d days left", days) << days << QString::number(frame);
    }
    void currentFrameByDaysLeft() {
        QFETCH(int, daysLeft);
        QFETCH(QString, frame);
        const QDate today(2027, 3, 1);
        FixToday(today);
        // The hour of the wedding does not count: only the calendar days do.
        PlanningDatabase::SetWeddingDate(FormatDate(today.addDays(daysLeft)) + QStringLiteral(" 11:30 PM"));
        QCOMPARE(clsTASK::MIN_TASK_GROUP_ID(), frame);
    }

    void noWeddingDateMakesOnlyTheFirstFrameCurrent() {
        PlanningDatabase::SetWeddingDate(QString());
        QCOMPARE(clsTASK::MIN_TASK_GROUP_ID(), QStringLiteral("0"));
    }

    void filtersAndCountsAgree() {
        const auto seed = DefaultChecklistTasks();
        QVERIFY(!seed.isEmpty());
        // Ten days left: frames 0 to 7 are current.
        FixToday(QDate(2027, 5, 26));
        PlanningDatabase::SetWeddingDate("05-Jun-2027");
        TestDatabase::Exec("UPDATE TASK SET COMPLETED_FG = 'Y' WHERE TASK_GROUP_ID IN (0, 8)");
        const int completed = PlanningDatabase::Count("TASK", "WHERE TASK_GROUP_ID IN (0, 8)").toInt();
        int currentOpen = 0;
        for (const auto& [group, name] : seed)
            currentOpen += (group >= 1 && group <= 7) ? 1 : 0;

        const QList<QPair<int, int>> expected = {{clsTASK::AllTasks, int(seed.size())},
                                                 {clsTASK::Open, int(seed.size()) - completed},
                                                 {clsTASK::Completed, completed},
                                                 {clsTASK::Current, currentOpen},
                                                 {clsTASK::ByDueDate, int(seed.size())}};
        clsTASK task;
        for (const auto& [filter, count] : expected) {
            QCOMPARE(task.GetTotal(filter), long(count));
            const QList<clsTASK> list = task.OpenRecords(filter);
            QCOMPARE(list.size(), count);
            for (const clsTASK& t : list) {
                if (filter == clsTASK::Open || filter == clsTASK::Current)
                    QCOMPARE(t.COMPLETED_FG, QStringLiteral("N"));
                if (filter == clsTASK::Completed)
                    QCOMPARE(t.COMPLETED_FG, QStringLiteral("Y"));
                QVERIFY(!t.TASK_GROUP_ID.isEmpty());
                if (filter == clsTASK::Current)
                    QVERIFY(t.TASK_GROUP_ID.toInt() <= 7);
            }
        }
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void listsByTimeFrameThenDueDateThenNumber() {
        TestDatabase::Exec("DELETE FROM TASK");
        TestDatabase::Exec(
            "INSERT INTO TASK (TASK_ID, TASK_NM, TASK_GROUP_ID, DUE_DT, COMPLETED_FG, SORT_ORDER_NB) "
            "VALUES (1, 'late', 2, '2027-03-01', 'N', 1), (2, 'b', 1, NULL, 'N', 3), "
            "(3, 'a', 1, NULL, 'N', 2), (4, 'early', 2, '2027-01-01', 'N', 4), "
            "(5, 'stray', 42, NULL, 'N', 5)");
        QStringList names;
        QStringList frames;
        for (const clsTASK& task : clsTASK().OpenRecords(clsTASK::AllTasks)) {
            names << task.TASK_NM;
            frames << task.TASK_GROUP_TX;
        }
        // A task whose time frame is not in the dictionary is still listed, before the others.
        QCOMPARE(names, QStringList({"stray", "a", "b", "early", "late"}));
        QCOMPARE(frames, QStringList({"", "10-12 months", "10-12 months", "6-9 months", "6-9 months"}));

        names.clear();
        for (const clsTASK& task : clsTASK().OpenRecords(clsTASK::ByDueDate))
            names << task.TASK_NM;
        QCOMPARE(names, QStringList({"a", "b", "stray", "early", "late"}));
    }

    void insertRenumbersEveryTask() {
        PlanningDatabase::SetWeddingDate("05-Jun-2027");
        const int before = PlanningDatabase::Count("TASK").toInt();
        const int framesUpTo2 = PlanningDatabase::Count("TASK", "WHERE TASK_GROUP_ID <= 2").toInt();
        clsTASK task = NewTask("Book the string quartet", "2", "01-Jan-2027");
        task.Save(true);
        QCOMPARE(task.TASK_ID, QString::number(before + 1));
        // The seeded tasks have no due date yet, and an empty date comes first within its frame.
        QCOMPARE(task.SORT_ORDER_NB, QString::number(framesUpTo2 + 1));
        QCOMPARE(TestDatabase::Scalar("SELECT SORT_ORDER_NB FROM TASK WHERE TASK_ID = ?", {task.TASK_ID}),
                 task.SORT_ORDER_NB);
        QCOMPARE(SortNumbers(), Dense(before + 1));

        // Gaps left by a delete are closed by the next insert.
        clsTASK().Delete(QStringLiteral("3"));
        clsTASK().Delete(QStringLiteral("7"));
        clsTASK another = NewTask("Last look at the seating", "8");
        another.Save(true);
        QCOMPARE(SortNumbers(), Dense(before));
    }

    void updateKeepsTheOrderAndWritesEveryColumn() {
        clsTASK task;
        QVERIFY(task.OpenRecord("5"));
        const QStringList before = SortNumbers();
        task.TASK_NM = QStringLiteral("Renamed");
        task.TASK_GROUP_ID = QStringLiteral("9");
        task.DUE_DT = QStringLiteral("05-Jun-2027");
        task.NOTES_TX = QString();
        task.Save(false);
        QCOMPARE(SortNumbers(), before);
        clsTASK again;
        QVERIFY(again.OpenRecord("5"));
        QCOMPARE(again.TASK_NM, QStringLiteral("Renamed"));
        QCOMPARE(again.TASK_GROUP_TX, QStringLiteral("Wedding day"));
        QCOMPARE(again.DUE_DT, QStringLiteral("05-Jun-2027"));
        QCOMPARE(again.DUE_DT_Format(), QStringLiteral("05-Jun-2027"));
        QCOMPARE(TestDatabase::Scalar("SELECT DUE_DT AS STORED FROM TASK WHERE TASK_ID = 5"),
                 QStringLiteral("2027-06-05"));
        QVERIFY(TestDatabase::Scalar("SELECT NOTES_TX IS NULL FROM TASK WHERE TASK_ID = 5") ==
                QLatin1String("1"));
    }

    void refreshOverwritesHandSetAndCompletedDates() {
        PlanningDatabase::SetWeddingDate("31-Dec-2027 4:00 PM");
        TestDatabase::Exec("DELETE FROM TASK");
        TestDatabase::Exec(
            "INSERT INTO TASK (TASK_ID, TASK_NM, TASK_GROUP_ID, DUE_DT, COMPLETED_FG, SORT_ORDER_NB) "
            "VALUES (1, 'hand-set', 0, '2020-01-01', 'N', 1), (2, 'done', 10, NULL, 'Y', 2), "
            "(3, 'odd frame', 77, '2021-05-05', 'N', 3)");
        QCOMPARE(clsTASK().RefreshDueDates(), 3);
        const QList<clsTASK> tasks = clsTASK().OpenRecords(clsTASK::ByDueDate);
        QCOMPARE(tasks.size(), 3);
        QCOMPARE(tasks[0].TASK_NM, QStringLiteral("hand-set"));
        QCOMPARE(tasks[0].DUE_DT, QStringLiteral("31-Dec-2026"));
        QCOMPARE(tasks[1].DUE_DT, QStringLiteral("31-Dec-2027"));
        QCOMPARE(tasks[2].TASK_NM, QStringLiteral("done"));
        QCOMPARE(tasks[2].DUE_DT, QStringLiteral("01-Jan-2028"));
        QCOMPARE(tasks[2].COMPLETED_FG, QStringLiteral("Y"));
        QCOMPARE(clsTASK().RefreshDueDates(), 0);
        // Without a wedding date there is nothing to count back from: the dates stay.
        PlanningDatabase::SetWeddingDate(QString());
        QCOMPARE(clsTASK().RefreshDueDates(), 0);
        QCOMPARE(PlanningDatabase::Count("TASK", "WHERE DUE_DT IS NULL"), QStringLiteral("0"));
    }

    void changingTheWeddingDateLeavesDueDatesAlone() {
        PlanningDatabase::SetWeddingDate("05-Jun-2027");
        clsTASK().RefreshDueDates();
        PlanningDatabase::SetWeddingDate("05-Jun-2028");
        clsTASK task;
        QVERIFY(task.OpenRecord("1"));
        QCOMPARE(task.DUE_DT, QStringLiteral("05-Jun-2026"));
        // 365 days before a date after 29 February 2028.
        QCOMPARE(clsTASK::CalculateDueDate(task), QStringLiteral("06-Jun-2027"));
    }

    void completingTouchesOnlyTheFlag() {
        clsTASK task;
        QVERIFY(task.OpenRecord("2"));
        const QString name = task.TASK_NM;
        task.TASK_NM = QStringLiteral("not to be written");
        task.COMPLETED_FG = QStringLiteral("Y");
        task.Update_COMPLETED_FG();
        clsTASK again;
        QVERIFY(again.OpenRecord("2"));
        QCOMPARE(again.COMPLETED_FG, QStringLiteral("Y"));
        QCOMPARE(again.TASK_NM, name);
    }

    void writesTheOrderShownOnThePage() {
        clsTASK().UpdateSort("1", "99");
        QCOMPARE(TestDatabase::Scalar("SELECT SORT_ORDER_NB FROM TASK WHERE TASK_ID = 1"),
                 QStringLiteral("99"));
        clsTASK().WriteSortOrder({"3", "1", "2"});
        QCOMPARE(
            TestDatabase::Scalar("SELECT group_concat(TASK_ID) FROM (SELECT TASK_ID FROM TASK WHERE TASK_ID "
                                 "<= 3 ORDER BY SORT_ORDER_NB)"),
            QStringLiteral("3,1,2"));
    }

    void failedInsertLeavesTheObjectAndTableAlone() {
        clsTASK task = NewTask("bad date", "3", "no such day");
        const int before = PlanningDatabase::Count("TASK").toInt();
        QVERIFY_THROWS_EXCEPTION(clsDbError, task.Save(true));
        QVERIFY(task.TASK_ID.isEmpty());
        QVERIFY(task.SORT_ORDER_NB.isEmpty());
        QCOMPARE(PlanningDatabase::Count("TASK").toInt(), before);
        QVERIFY(db->Messages().Prompts.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_clsTASK)
#include "tst_clsTASK.moc"
