#include "PlanningTestTools.h"
#include "planning/clsBUDGET.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsGIFT.h"
#include "planning/clsNOTEBOOK.h"
#include "planning/clsTASK.h"
#include "planning/clsTIMELINE.h"
#include "planning/clsVENDOR.h"

#include <QtTest>
#include <memory>

// The schema steps of the planning tables: each looks for itself whether its change is missing, brings
// an older table up to the present shape, and leaves a current database alone.
class tst_planningSchema : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

    static QString Schema() {
        return TestDatabase::Scalar(
            "SELECT group_concat(sql, ';') FROM (SELECT sql FROM sqlite_master ORDER BY name)");
    }
    static QString Column(const QString& table, const QString& column, const QString& property) {
        return TestDatabase::Scalar(
            QStringLiteral("SELECT \"%1\" FROM pragma_table_info(?) WHERE name = ?").arg(property),
            {table, column});
    }
    static void RunAllPlanningSteps() {
        clsVENDOR::Patch_Add_FILE_PATH_TX();
        clsNOTEBOOK::CreateTable();
        clsTASK::Patch_7_Apply();
        clsGIFT::Patch_7_Apply();
        clsVENDOR::Patch_Add_VENDOR_CATEGORY_ID();
        clsGIFT::Patch_5_Apply();
        clsBUDGET::Patch_4_Apply();
        clsBUDGET::Patch_7_Apply();
        clsBUDGET::Patch_3_Apply();
        clsTIMELINE::CreateTable();
        clsBUDGET_CATEGORY_DICT::CreateTable();
        clsBUDGET::Patch_2_Apply();
    }
    // A BUDGET table as the oldest files had it: no due date, payer or category.
    static void MakeOldBudget(const QList<int>& ids) {
        TestDatabase::Exec("DROP TABLE BUDGET");
        TestDatabase::Exec(
            "CREATE TABLE BUDGET (BUDGET_ID INTEGER NOT NULL PRIMARY KEY, ACTUAL_AMOUNT_NB REAL, "
            "PAID_DT TEXT, ITEM_NM TEXT, VENDOR_ID INTEGER, NOTES_TX TEXT)");
        for (int id : ids)
            TestDatabase::Exec("INSERT INTO BUDGET (BUDGET_ID, ACTUAL_AMOUNT_NB, ITEM_NM) VALUES (?, ?, ?)",
                               {id, id * 10.0, QStringLiteral("line %1").arg(id)});
    }

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void tasksGetTheirSortOrder() {
        TestDatabase::Exec("DROP TABLE TASK");
        TestDatabase::Exec("CREATE TABLE TASK (TASK_ID INTEGER NOT NULL PRIMARY KEY, TASK_NM TEXT, "
                           "TASK_GROUP_ID INTEGER, DUE_DT TEXT, COMPLETED_FG TEXT, NOTES_TX TEXT)");
        TestDatabase::Exec("INSERT INTO TASK (TASK_ID, TASK_NM, TASK_GROUP_ID, DUE_DT, COMPLETED_FG) VALUES "
                           "(1, 'zeta', 3, '2027-01-01', 'N'), (2, 'alpha', 3, '2027-01-01', 'N'), "
                           "(3, 'first', 0, '2026-12-01', 'Y'), (4, 'undated', 3, NULL, 'N'), "
                           "(5, 'day after', 10, '2027-06-06', 'N')");
        clsTASK::Patch_7_Apply();
        QCOMPARE(
            TestDatabase::Scalar("SELECT group_concat(TASK_NM, ',') FROM (SELECT TASK_NM FROM TASK ORDER BY "
                                 "SORT_ORDER_NB)"),
            QStringLiteral("first,undated,alpha,zeta,day after"));
        QCOMPARE(
            TestDatabase::Scalar("SELECT group_concat(SORT_ORDER_NB) FROM (SELECT SORT_ORDER_NB FROM TASK "
                                 "ORDER BY SORT_ORDER_NB)"),
            QStringLiteral("1,2,3,4,5"));
        TestDatabase::Exec("UPDATE TASK SET SORT_ORDER_NB = 9 WHERE TASK_ID = 1");
        clsTASK::Patch_7_Apply();
        QCOMPARE(TestDatabase::Scalar("SELECT SORT_ORDER_NB FROM TASK WHERE TASK_ID = 1"),
                 QStringLiteral("9"));
    }

    void oldBudgetLinesGetTheirCategory_data() {
        QTest::addColumn<int>("budgetId");
        QTest::addColumn<int>("category");
        const QList<QPair<QList<int>, int>> mapping = {{{5, 6}, 3},
                                                       {{7, 8, 9}, 1},
                                                       {{10, 11, 12, 20, 25, 28}, 2},
                                                       {{13}, 5},
                                                       {{14}, 6},
                                                       {{15, 16}, 7},
                                                       {{18}, 8},
                                                       {{19, 26}, 4},
                                                       {{27}, 9},
                                                       {{1, 4, 17, 21, 22, 23, 24, 29, 99}, 10}};
        for (const auto& [ids, category] : mapping)
            for (int id : ids)
                QTest::addRow("line %d", id) << id << category;
    }
    void oldBudgetLinesGetTheirCategory() {
        QFETCH(int, budgetId);
        QFETCH(int, category);
        QCOMPARE(clsBUDGET::Patch_2_CategoryFor(budgetId), category);
    }

    void anOldBudgetIsBroughtUpToDate() {
        PlanningDatabase::SetWeddingDate("05-Jun-2027 3:00 PM");
        MakeOldBudget({5, 13, 17, 27});
        TestDatabase::Exec("ALTER TABLE BUDGET ADD COLUMN DUE_DT TEXT"); // an earlier start's Patch 4
        TestDatabase::Exec("UPDATE BUDGET SET DUE_DT = '2027-04-01' WHERE BUDGET_ID = 13");
        RunAllPlanningSteps();

        QCOMPARE(Column("BUDGET", "DUE_DT", "notnull"), QStringLiteral("1"));
        QVERIFY(gDB().ForeignKeyExists("BUDGET", "BUDGET_TO_PAID_BY_DICT_FK"));
        QVERIFY(gDB().ForeignKeyExists("BUDGET", "BUDGET_TO_BUDGET_CATEGORY_FK"));
        QCOMPARE(TestDatabase::Scalar(
                     "SELECT group_concat(BUDGET_ID || ':' || BUDGET_CATEGORY_ID || ':' || PAID_BY_ID "
                     "|| ':' || DUE_DT, ' ') AS STORED FROM (SELECT * FROM BUDGET ORDER BY BUDGET_ID)"),
                 QStringLiteral("5:3:4:2027-06-05 13:5:4:2027-04-01 17:10:4:2027-06-05 27:9:4:2027-06-05"));

        // The patched table works with the record class like a new one.
        QCOMPARE(clsBUDGET_CATEGORY_DICT::TotalSumByPaidBy("4").Cents(), 62000);
        const QList<clsBUDGET> lines = clsBUDGET().OpenRecordsByCategory(clsBUDGET::AllExpenses);
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines.first().BUDGET_CATEGORY_TX, QStringLiteral("Ceremony"));
        QCOMPARE(lines.first().PAID_BY_TX, QStringLiteral("Bride's Family"));
        QVERIFY(
            !RecordIO::Attempt([] { RecordIO::Delete("BUDGET_CATEGORY_DICT", "BUDGET_CATEGORY_ID", "3"); }));
        QCOMPARE(db->Messages().Prompts,
                 QStringList({"Unable to delete.  Budget entries are associated with this entry."}));

        const QString schema = Schema();
        RunAllPlanningSteps();
        QCOMPARE(Schema(), schema);
    }

    void withoutAWeddingDateAnUndatedLineStopsTheRebuild() {
        MakeOldBudget({1, 2});
        clsBUDGET::Patch_4_Apply();
        QCOMPARE(Column("BUDGET", "DUE_DT", "notnull"), QStringLiteral("0"));
        QVERIFY_THROWS_EXCEPTION(clsDbError, clsBUDGET::Patch_7_Apply());
        QCOMPARE(Column("BUDGET", "DUE_DT", "notnull"), QStringLiteral("0"));
        QCOMPARE(PlanningDatabase::Count("BUDGET", "WHERE DUE_DT IS NULL"), QStringLiteral("2"));

        // Once the lines have dates the same step goes through.
        TestDatabase::Exec("UPDATE BUDGET SET DUE_DT = '2027-01-01'");
        clsBUDGET::Patch_7_Apply();
        QCOMPARE(Column("BUDGET", "DUE_DT", "notnull"), QStringLiteral("1"));
        QCOMPARE(PlanningDatabase::Count("BUDGET"), QStringLiteral("2"));
    }

    void anOldGiftTableIsWidenedAndDated() {
        TestDatabase::Exec("DROP TABLE GIFT");
        TestDatabase::Exec(
            "CREATE TABLE GIFT (GIFT_ID INTEGER NOT NULL PRIMARY KEY, EVENT_ID INTEGER, "
            "CONTACT_ID INTEGER, INVITE_ID INTEGER, GIFT_TX VARCHAR(50), THANK_YOU_SENT_FG TEXT, "
            "NOTES_TX TEXT)");
        TestDatabase::Exec("INSERT INTO GIFT (GIFT_ID, EVENT_ID, GIFT_TX, THANK_YOU_SENT_FG) VALUES "
                           "(1, 1, 'Toaster ''deluxe'' 🎁', 'N')");
        clsGIFT::Patch_7_Apply();
        clsGIFT::Patch_5_Apply();
        QCOMPARE(Column("GIFT", "GIFT_TX", "type"), QStringLiteral("TEXT"));
        QVERIFY(gDB().FieldExists("GIFT", "RECEIVED_DT"));
        clsGIFT gift;
        QVERIFY(gift.OpenRecord("1"));
        QCOMPARE(gift.GIFT_TX, QStringLiteral("Toaster 'deluxe' 🎁"));
        QCOMPARE(gift.EVENT_TX, QStringLiteral("Wedding Day"));
        gift.GIFT_TX = QString(255, QLatin1Char('x'));
        gift.RECEIVED_DT = QStringLiteral("01-Jul-2027");
        gift.Save(false);
        QVERIFY(gift.OpenRecord("1"));
        QCOMPARE(gift.GIFT_TX.size(), 255);
        QCOMPARE(gift.RECEIVED_DT, QStringLiteral("01-Jul-2027"));
    }
};

QTEST_GUILESS_MAIN(tst_planningSchema)
#include "tst_planningSchema.moc"
