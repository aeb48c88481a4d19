#include "TestDatabase.h"
#include "core/clsApp.h"

#include <QtTest>
#include <functional>
#include <memory>

using Counter = std::function<double()>;
Q_DECLARE_METATYPE(Counter)

// The counts that the Home page and the statistics read, on a small wedding.
class tst_clsApp_Counters : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static void Fill() {
        const char* statements[] = {
            "INSERT INTO EVENT (EVENT_ID, EVENT_TX, EVENT_DT) VALUES (2, 'Shower', '2027-05-01')",
            "INSERT INTO INVITE (INVITE_ID, INVITE_RSVP_ID, DISPLAY_AS_TX, INVITE_SENT_FG) VALUES (1, 1, "
            "'Smith', 'Y')",
            "INSERT INTO DINING_TABLE VALUES (1, 1, 'Family', 8, 0, 0, 1), (2, 2, NULL, 10, 0, 0, 1)",
            "INSERT INTO CONTACT (CONTACT_ID, FIRST_NM, LAST_NM, INVITE_ID, PRIMARY_CONTACT_FG, "
            "SORT_ORDER_NB, "
            "ROLE_ID, DINING_TABLE_ID, ATTENDING_FG) VALUES "
            "(3, 'John', 'Smith', 1, 'Y', 1, 18, 1, 'Y'), (4, 'Mary', 'Smith', 1, 'N', 2, 18, 1, 'Y'), "
            "(5, 'Ann', 'Young', NULL, 'N', 1, 18, NULL, 'N')",
            "INSERT INTO BUDGET (BUDGET_ID, ACTUAL_AMOUNT_NB, DUE_DT, ITEM_NM, BUDGET_CATEGORY_ID, "
            "PAID_BY_ID) "
            "VALUES (1, 100, '2027-06-05', 'Cake', 4, 1), (2, 50, '2027-06-05', 'Veil', 2, 1), "
            "(3, 20, '2027-06-05', 'Favors', 4, 2)",
            "INSERT INTO GIFT (GIFT_ID, EVENT_ID, CONTACT_ID, GIFT_TX, THANK_YOU_SENT_FG) VALUES "
            "(1, 1, 3, 'Toaster', 'Y'), (2, 2, 5, 'Vase', 'N'), (3, 1, 4, 'Bowl', 'N')",
            "INSERT INTO TIMELINE (TIMELINE_ID, TIMELINE_START_DT, TIMELINE_END_DT, TIMELINE_DESC, EVENT_ID) "
            "VALUES "
            "(1, '2027-06-05 15:00:00', '2027-06-05 15:30:00', 'Ceremony', 1), "
            "(2, '2027-06-05 16:00:00', '2027-06-05 18:00:00', 'Dinner', 1), "
            "(3, '2027-05-01 14:00:00', '2027-05-01 15:00:00', 'Games', 2)",
        };
        for (const char* sql : statements)
            TestDatabase::Exec(QString::fromLatin1(sql));
    }

private slots:
    void init() {
        db = std::make_unique<TestDatabase>();
        Fill();
    }
    void cleanup() { db.reset(); }

    void countsPassTheirArgumentsThrough_data() {
        QTest::addColumn<Counter>("count");
        QTest::addColumn<double>("expected");
        clsApp& a = gApp();
        QTest::newRow("budget lines of a category") << Counter([&a] { return a.TotalBudget(0, "4"); }) << 2.0;
        QTest::newRow("contacts of a custom condition")
            << Counter([&a] { return a.TotalContacts(0, "CONTACT.LAST_NM = 'Smith'"); }) << 2.0;
        QTest::newRow("gifts thanked") << Counter([&a] { return a.TotalGifts(1); }) << 1.0;
        QTest::newRow("tasks done") << Counter([&a] {
            TestDatabase::Exec("UPDATE TASK SET COMPLETED_FG = 'N'");
            TestDatabase::Exec("UPDATE TASK SET COMPLETED_FG = 'Y' WHERE TASK_ID IN (1, 2)");
            return double(a.TotalTasks(2));
        }) << 2.0;
        QTest::newRow("timeline entries of an event")
            << Counter([&a] { return a.TotalTimelineEntries("1"); }) << 2.0;
        QTest::newRow("events with a timeline") << Counter([&a] { return a.TotalTimelineEvents(); }) << 2.0;
    }
    void countsPassTheirArgumentsThrough() {
        QFETCH(Counter, count);
        QFETCH(double, expected);
        QCOMPARE(count(), expected);
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void aDictionaryKindWithoutTableIsRefused() {
        QVERIFY_THROWS_EXCEPTION(clsDbError, gApp().TotalSettings(5));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_clsApp_Counters)
#include "tst_clsApp_Counters.moc"
