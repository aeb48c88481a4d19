#include "TestDatabase.h"
#include "core/clsVOWREN.h"

#include <QtTest>
#include <memory>

class tst_clsVOWREN : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static QStringList Ids() {
        const clsRecordset rs = gDB().Execute("SELECT VOWREN_ID FROM VOWREN ORDER BY VOWREN_ID");
        QStringList ids;
        for (int i = 0; i < rs.RowCount(); ++i)
            ids << rs.Value(i, 0);
        return ids;
    }
    static QString Stored(int id) {
        return TestDatabase::Scalar("SELECT VOWREN_TX FROM VOWREN WHERE VOWREN_ID = ?", {id});
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void patchesAddWhatAnOlderTableLacks_data() {
        QTest::addColumn<int>("rowsBefore");
        QTest::addColumn<bool>("patch6");
        QTest::addColumn<bool>("patch7");
        QTest::addColumn<QStringList>("idsAfter");
        const QStringList all = {"1", "2", "3", "4", "5", "6", "7", "8", "9"};
        QTest::newRow("rows 1 to 3 get 4 to 9 in one go") << 3 << true << true << all;
        QTest::newRow("rows 1 to 6 get 7 to 9") << 6 << false << true << all;
        QTest::newRow("rows 1 to 5 get neither")
            << 5 << false << false << QStringList({"1", "2", "3", "4", "5"});
        QTest::newRow("a current table stays") << 9 << false << false << all;
    }
    void patchesAddWhatAnOlderTableLacks() {
        QFETCH(int, rowsBefore);
        QFETCH(bool, patch6);
        QFETCH(bool, patch7);
        QFETCH(QStringList, idsAfter);
        gApp().SetEtiquetteIsFormal(true);
        gRegistry().SaveSetting(clsApp::RootKey(), "GoogleMapIndex", "3");
        TestDatabase::Exec("DELETE FROM VOWREN WHERE VOWREN_ID > ?", {rowsBefore});
        TestDatabase::Exec("UPDATE VOWREN SET VOWREN_TX = 'old' WHERE VOWREN_ID > 3");

        QCOMPARE(clsVOWREN::Patch_6_Apply(), patch6);
        QCOMPARE(clsVOWREN::Patch_7_Apply(), patch7);
        QCOMPARE(Ids(), idsAfter);
        if (patch6) {
            QCOMPARE(Stored(4), QString::number(170 + 256 * 194 + 65536 * 234));
            QCOMPARE(Stored(5), QString::number(221 + 256 * 231 + 65536 * 247));
            QCOMPARE(Stored(6), QString::number(200 + 256 * 200 + 65536 * 200));
        }
        if (patch7) {
            QCOMPARE(Stored(7), QStringLiteral("True"));
            QCOMPARE(Stored(8), QStringLiteral("True"));
            QCOMPARE(Stored(9), QStringLiteral("3"));
        }
        if (!patch6 && rowsBefore >= 4)
            QCOMPARE(Stored(4), QStringLiteral("old"));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void etiquettePatchCopiesAnInformalSetting() {
        TestDatabase::Exec("DELETE FROM VOWREN WHERE VOWREN_ID > 6");
        QVERIFY(clsVOWREN::Patch_7_Apply());
        QCOMPARE(Stored(7), QStringLiteral("False"));
        QCOMPARE(Stored(9), QStringLiteral("0"));
    }

    void createTableMakesAndSeedsAMissingTable() {
        TestDatabase::Exec("INSERT INTO VOWREN VALUES (10, 'mine')");
        QVERIFY(!clsVOWREN::CreateTable());
        QCOMPARE(Ids().size(), 10);
        TestDatabase::Exec("DROP TABLE VOWREN");
        QVERIFY(clsVOWREN::CreateTable());
        QCOMPARE(Ids().mid(0, 3), QStringList({"1", "2", "3"}));
        QCOMPARE(Stored(1), QStringLiteral("1"));
        QCOMPARE(Stored(3), QStringLiteral("0"));
        clsVOWREN::Patch_6_Apply();
        clsVOWREN::Patch_7_Apply();
        QCOMPARE(Ids().size(), 9);
    }

    void valuesAreReadFromMemory() {
        clsVOWREN store;
        QCOMPARE(store.OpenRecords().size(), 9);
        QCOMPARE(store.Get_VOWREN_TX(2), QStringLiteral("1"));
        QCOMPARE(store.Get_VOWREN_TX(QStringLiteral("6")), QString::number(200 + 256 * 200 + 65536 * 200));
        // A change behind its back is seen only after the rows are read again.
        TestDatabase::Exec("UPDATE VOWREN SET VOWREN_TX = '4' WHERE VOWREN_ID = 2");
        QCOMPARE(store.Get_VOWREN_TX(2), QStringLiteral("1"));
        store.OpenRecords();
        QCOMPARE(store.Get_VOWREN_TX(2), QStringLiteral("4"));
    }

    void quickUpdateChangesTableAndMemory_data() {
        QTest::addColumn<int>("id");
        QTest::addColumn<QString>("value");
        QTest::newRow("quote in text") << 3 << "O'Brien";
        QTest::newRow("emptied") << 7 << "";
    }
    void quickUpdateChangesTableAndMemory() {
        QFETCH(int, id);
        QFETCH(QString, value);
        clsVOWREN store;
        store.OpenRecords();
        store.QuickUpdate(id, value);
        QCOMPARE(store.Get_VOWREN_TX(id), value);
        QCOMPARE(Stored(id), value);
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM VOWREN"), QStringLiteral("9"));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void aKeyNeverLoadedIsRefused() {
        clsVOWREN store;
        QVERIFY_THROWS_EXCEPTION(clsDbError, store.Get_VOWREN_TX(1));
        store.OpenRecords();
        QVERIFY_THROWS_EXCEPTION(clsDbError, store.Get_VOWREN_TX(12));
        QVERIFY(db->Messages().Prompts.isEmpty());
        QVERIFY(!store.Contains("12"));
        QVERIFY(store.Contains("9"));
    }

    void saveAndDeleteKeepMemoryInStep() {
        clsVOWREN store;
        store.OpenRecords();
        store.VOWREN_TX = QStringLiteral("extra");
        store.Save(true);
        QCOMPARE(store.VOWREN_ID, QStringLiteral("10"));
        QCOMPARE(store.Get_VOWREN_TX(10), QStringLiteral("extra"));
        store.VOWREN_TX = QStringLiteral("changed");
        store.Save(false);
        QCOMPARE(Stored(10), QStringLiteral("changed"));
        QCOMPARE(store.Get_VOWREN_TX(10), QStringLiteral("changed"));

        clsVOWREN row;
        QVERIFY(row.OpenRecord("10"));
        QCOMPARE(row.VOWREN_TX, QStringLiteral("changed"));

        store.Delete("10");
        QVERIFY(!store.Contains("10"));
        QCOMPARE(Ids().size(), 9);
    }
};

QTEST_GUILESS_MAIN(tst_clsVOWREN)
#include "tst_clsVOWREN.moc"
