#include "GuestReportTestData.h"
#include "reports/clsRTFBudgetCategory.h"

#include <QtTest>
#include <memory>

using namespace GuestReportTestData;

namespace {

// Stationery: invitations 120.50 (bride, due) and cards 80 (groom, paid); fashion: the dress 1500
// (bride's family, paid) and shoes 99.99 (bride, due). Estimates: stationery 150, fashion 1000.
void AddLedger() {
    TestDatabase::Exec(
        "UPDATE BUDGET_CATEGORY_DICT SET ESTIMATE_AMOUNT_NB = 150 WHERE BUDGET_CATEGORY_ID = 1");
    TestDatabase::Exec(
        "UPDATE BUDGET_CATEGORY_DICT SET ESTIMATE_AMOUNT_NB = 1000 WHERE BUDGET_CATEGORY_ID = 2");
    TestDatabase::Exec(
        "INSERT INTO BUDGET (BUDGET_ID, ITEM_NM, ACTUAL_AMOUNT_NB, BUDGET_CATEGORY_ID, PAID_BY_ID, "
        "DUE_DT, PAID_DT) VALUES "
        "(1, 'Invitations', 120.5, 1, 1, '2027-06-01', NULL), "
        "(2, 'Cards', 80, 1, 2, '2027-01-01', '2027-01-02'), "
        "(3, 'Dress', 1500, 2, 4, '2027-02-01', '2027-01-15'), "
        "(4, 'Shoes', 99.99, 2, 1, '2027-05-10', NULL)");
}

} // namespace

class tst_BudgetReports : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void initTestCase() { RegisterReportClasses(); }
    void init() {
        db = std::make_unique<TestDatabase>();
        AddLedger();
    }
    void cleanup() {
        clsRTFBudgetCategory::SetChartPainter({});
        db.reset();
    }

    // In CSV a group is one field, its subtotal a row of its own, and every amount a plain number.
    void subtotalsUnderEachGroup_data() {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QList<QStringList>>("rows");
        QTest::newRow("by category")
            << "clsRTFBudget"
            << QList<QStringList>{{"Fashion"},
                                  {"Dress", "1500.00", "01-Feb-2027", "15-Jan-2027", "", "Bride's Family"},
                                  {"Shoes", "99.99", "10-May-2027", "", "", "Bride"},
                                  {"Subtotal Fashion", "1599.99", "", "", "", ""},
                                  {"Stationery"},
                                  {"Cards", "80.00", "01-Jan-2027", "02-Jan-2027", "", "Groom"},
                                  {"Invitations", "120.50", "01-Jun-2027", "", "", "Bride"},
                                  {"Subtotal Stationery", "200.50", "", "", "", ""},
                                  {"Total", "1800.49", "", "", "", ""}};
        QTest::newRow("by payer") << "clsRTFBudgetPaidBy"
                                  << QList<QStringList>{{"Bride"},
                                                        {"Shoes", "99.99", "", "", "Fashion"},
                                                        {"Invitations", "120.50", "", "", "Stationery"},
                                                        {"Subtotal Bride", "220.49", "", "", ""},
                                                        {"Bride's Family"},
                                                        {"Dress", "1500.00", "15-Jan-2027", "", "Fashion"},
                                                        {"Subtotal Bride's Family", "1500.00", "", "", ""},
                                                        {"Groom"},
                                                        {"Cards", "80.00", "02-Jan-2027", "", "Stationery"},
                                                        {"Subtotal Groom", "80.00", "", "", ""},
                                                        {"Total", "1800.49", "", "", ""}};
    }
    void subtotalsUnderEachGroup() {
        QFETCH(QString, className);
        QFETCH(QList<QStringList>, rows);
        const Shown csv = Write(Route(className), false);
        QVERIFY2(csv.Error.isEmpty(), qPrintable(csv.Error));
        QCOMPARE(csv.Rows.mid(1, rows.size()), rows);
        // The whole budget closes the report, its difference plain and negative where it is.
        QVERIFY(csv.HasRow({"Remaining (+/-)", "-650.49", "", "", "", ""}) ||
                csv.HasRow({"Remaining (+/-)", "-650.49", "", "", ""}));
    }

    void estimatesAgainstActuals() {
        const Shown csv = Write(Route("clsRTFBudgetCategory"), false);
        QVERIFY2(csv.Error.isEmpty(), qPrintable(csv.Error));
        QVERIFY(csv.HasRow({"Fashion", "1000.00", "86.96%", "99.99", "1500.00", "1599.99", "-599.99"}));
        QVERIFY(csv.HasRow({"Flowers", "0.00", "0.00%", "0.00", "0.00", "0.00", "0.00"}));
        QCOMPARE(csv.Rows.last(),
                 QStringList({"Totals:", "1150.00", "100.00%", "220.49", "1580.00", "1800.49", "-650.49"}));
    }

    // The chart follows the table in RTF, drawn by whoever the screens registered; without one the report
    // says where the chart can be had.
    void theChartFollowsTheTable_data() {
        QTest::addColumn<bool>("painter");
        QTest::addColumn<QString>("expected");
        QTest::newRow("drawn") << true << "\\pngblip";
        QTest::newRow("not drawn here") << false << "is drawn when this report is written from";
    }
    void theChartFollowsTheTable() {
        QFETCH(bool, painter);
        QFETCH(QString, expected);
        int categories = 0;
        if (painter)
            clsRTFBudgetCategory::SetChartPainter(
                [&categories](const QList<clsBudgetCategorySums>& sums, QSize) {
                    categories = int(sums.size());
                    return QByteArray("\x89PNG\r\n\x1a\n", 8);
                });
        const QString file = modReportRunner::Write(Route("clsRTFBudgetCategory"), modReportRunner::Output());
        QVERIFY(RtfTestTools::FileBytes(file).contains(expected.toLatin1()));
        QCOMPARE(categories, painter ? 10 : 0);
    }
};

QTEST_GUILESS_MAIN(tst_BudgetReports)
#include "tst_BudgetReports.moc"
