#include "PlanningTestTools.h"
#include "planning/clsBUDGET.h"
#include "planning/clsVENDOR.h"

#include <QtTest>
#include <memory>

class tst_clsVENDOR : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

    static clsVENDOR NewVendor(const QString& name, const QString& category) {
        clsVENDOR vendor;
        vendor.VENDOR_NM = name;
        vendor.VENDOR_CATEGORY_ID = category;
        return vendor;
    }

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void listedByCategoryThenName() {
        // 2 Baker, 6 Florist, 9 Photographer
        for (clsVENDOR vendor : {NewVendor("Petals", "6"), NewVendor("crumbs", "2"), NewVendor("Bloom", "6"),
                                 NewVendor("Apex Photo", "9"), NewVendor("Batter Up", "2")})
            vendor.Save(true);
        QStringList rows;
        for (const clsVENDOR& vendor : clsVENDOR().OpenRecords())
            rows << vendor.VENDOR_CATEGORY_TX + QLatin1Char('/') + vendor.VENDOR_NM;
        QCOMPARE(rows, QStringList({"Baker/Batter Up", "Baker/crumbs", "Florist/Bloom", "Florist/Petals",
                                    "Photographer/Apex Photo"}));
        QCOMPARE(clsVENDOR().GetTotal(), 5L);
    }

    void aVendorWithExpensesCannotBeDeleted() {
        clsVENDOR vendor = NewVendor("Bloom", "6");
        vendor.Save(true);
        clsBUDGET expense;
        expense.ITEM_NM = QStringLiteral("Bouquet");
        expense.ACTUAL_AMOUNT_NB = QStringLiteral("300");
        expense.DUE_DT = QStringLiteral("01-Jun-2027");
        expense.BUDGET_CATEGORY_ID = QStringLiteral("5");
        expense.PAID_BY_ID = QStringLiteral("4");
        expense.VENDOR_ID = vendor.VENDOR_ID;
        expense.Save(true);

        QVERIFY(!RecordIO::Attempt([&] { clsVENDOR().Delete(vendor.VENDOR_ID); }));
        QCOMPARE(db->Messages().Prompts,
                 QStringList({"Unable to delete.  Budget entries are associated with this entry."}));
        QCOMPARE(clsVENDOR().GetTotal(), 1L);

        clsBUDGET().Delete(expense.BUDGET_ID);
        clsVENDOR().Delete(vendor.VENDOR_ID);
        QCOMPARE(clsVENDOR().GetTotal(), 0L);
    }

    void attachedFiles_data() {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QStringList>("readBack");
        QTest::newRow("none") << QStringList() << "" << QStringList();
        QTest::newRow("two") << QStringList({"/a/x.pdf", "/b/y z.jpg"}) << "/a/x.pdf;/b/y z.jpg"
                             << QStringList({"/a/x.pdf", "/b/y z.jpg"});
        QTest::newRow("a path holding ';' splits in two")
            << QStringList({"/a/menu;v2.pdf"}) << "/a/menu;v2.pdf" << QStringList({"/a/menu", "v2.pdf"});
    }
    void attachedFiles() {
        QFETCH(QStringList, paths);
        QFETCH(QString, stored);
        QFETCH(QStringList, readBack);
        clsVENDOR vendor = NewVendor("Bloom", "6");
        vendor.SetFilePaths({"/old/file.pdf"});
        vendor.Save(true);
        vendor.SetFilePaths(paths);
        vendor.Save(false);
        QCOMPARE(TestDatabase::Scalar("SELECT ifnull(FILE_PATH_TX, 'NULL') FROM VENDOR WHERE VENDOR_ID = ?",
                                      {vendor.VENDOR_ID}),
                 stored.isEmpty() ? QStringLiteral("NULL") : stored);
        clsVENDOR again;
        QVERIFY(again.OpenRecord(vendor.VENDOR_ID));
        QCOMPARE(again.FilePaths(), readBack);
    }

    void addressOnOneLineAndOnTheMap() {
        clsVENDOR vendor = NewVendor("Bloom", "6");
        vendor.ADDRESS_TX = QStringLiteral("12 Oak St\r\nBoston, MA  02101");
        QCOMPARE(vendor.ADDRESS_TX_NO_CRLF(), QStringLiteral("12 Oak St, Boston, MA  02101"));
        QCOMPARE(vendor.MapURL(), MapAddressURL(vendor.ADDRESS_TX, 0));
        TestDatabase::Exec("UPDATE VOWREN SET VOWREN_TX = '5' WHERE VOWREN_ID = 9");
        QCOMPARE(vendor.MapURL(), MapAddressURL(vendor.ADDRESS_TX, 5));
    }
};

QTEST_GUILESS_MAIN(tst_clsVENDOR)
#include "tst_clsVENDOR.moc"
