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

    void etiquettePatchCopiesAnInformalSetting() {
        TestDatabase::Exec("DELETE FROM VOWREN WHERE VOWREN_ID > 6");
        QVERIFY(clsVOWREN::Patch_7_Apply());
        QCOMPARE(Stored(7), QStringLiteral("False"));
        QCOMPARE(Stored(9), QStringLiteral("0"));
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
