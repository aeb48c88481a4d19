// The budget, vendor and gift pages on the demo wedding grown to 5 000 expenses in 40 categories,
// 1 000 vendors and 5 000 gifts, offscreen: each page opened until filled and painted, and a change of
// the selected budget category with its expenses and charts drawn anew.
#include "BenchPages.h"
#include "BenchWedding.h"
#include "core/clsDB.h"
#include "planning/ui/frmMain_05_Gifts.h"
#include "planning/ui/frmMain_07_Budget.h"
#include "planning/ui/frmMain_08_Vendors.h"

#include <QApplication>
#include <QPixmap>
#include <benchmark/benchmark.h>

namespace {

// Rows numbered from 1 to n, for the inserts below.
QString Numbers(int n) {
    return QStringLiteral("WITH RECURSIVE N(I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < %1) ")
        .arg(n);
}

bool GrowTheWedding(QString* message) {
    try {
        clsTransaction tx(gDB());
        gDB().Execute(
            Numbers(40) +
            QStringLiteral("INSERT INTO BUDGET_CATEGORY_DICT (BUDGET_CATEGORY_ID, BUDGET_CATEGORY_TX, "
                           "ESTIMATE_AMOUNT_NB) SELECT 100 + I, 'Category ' || I, I * 250.25 FROM N "
                           "WHERE I > 10"));
        gDB().Execute(
            Numbers(1000) +
            QStringLiteral("INSERT INTO VENDOR (VENDOR_ID, VENDOR_NM, VENDOR_CATEGORY_ID, ADDRESS_TX, "
                           "PHONE_TX, EMAIL_TX) SELECT 1000 + I, 'Vendor ' || I, 1 + I % 5, "
                           "I || ' Main St', '555-' || I, 'v' || I || '@example.com' FROM N"));
        const long expenses = gDB().Execute(QStringLiteral("SELECT COUNT(*) FROM BUDGET")).Scalar().toLong();
        gDB().Execute(
            Numbers(5000 - int(expenses)) +
            QStringLiteral(", C(K, ID) AS (SELECT ROW_NUMBER() OVER (ORDER BY BUDGET_CATEGORY_ID) - 1, "
                           "BUDGET_CATEGORY_ID FROM BUDGET_CATEGORY_DICT) "
                           "INSERT INTO BUDGET (BUDGET_ID, ITEM_NM, ACTUAL_AMOUNT_NB, DUE_DT, PAID_DT, "
                           "BUDGET_CATEGORY_ID, PAID_BY_ID, VENDOR_ID) SELECT 10000 + I, 'Expense ' || I, "
                           "(I % 997) + 0.01 * (I % 100), '2027-05-' || printf('%02d', 1 + I % 28), "
                           "CASE WHEN I % 3 = 0 THEN '2027-01-15' END, C.ID, 1 + I % 5, 1001 + I % 1000 "
                           "FROM N JOIN C ON C.K = I % 40"));
        const long gifts = gDB().Execute(QStringLiteral("SELECT COUNT(*) FROM GIFT")).Scalar().toLong();
        gDB().Execute(
            Numbers(5000 - int(gifts)) +
            QStringLiteral(", P(K, ID) AS (SELECT ROW_NUMBER() OVER (ORDER BY CONTACT_ID) - 1, CONTACT_ID "
                           "FROM CONTACT) INSERT INTO GIFT (GIFT_ID, EVENT_ID, CONTACT_ID, GIFT_TX, "
                           "THANK_YOU_SENT_FG) SELECT 10000 + I, 1, P.ID, 'Gift ' || I, CASE WHEN I % 2 = 0 "
                           "THEN 'Y' ELSE 'N' END FROM N JOIN P ON P.K = I % 9000"));
        tx.Commit();
    } catch (const clsDbError& e) {
        *message = e.Message();
        return false;
    }
    return true;
}


void BM_BudgetPageOpen(benchmark::State& state) {
    OpenAndPaint<frmMain_07_Budget>(state, true);
}
BENCHMARK(BM_BudgetPageOpen)->Unit(benchmark::kMillisecond);

void BM_VendorsPageOpen(benchmark::State& state) {
    OpenAndPaint<frmMain_08_Vendors>(state, true);
}
BENCHMARK(BM_VendorsPageOpen)->Unit(benchmark::kMillisecond);

void BM_GiftsPageOpen(benchmark::State& state) {
    OpenAndPaint<frmMain_05_Gifts>(state, true);
}
BENCHMARK(BM_GiftsPageOpen)->Unit(benchmark::kMillisecond);

// Each round selects the next category: its expenses, counts and both charts are made anew and painted.
void BM_BudgetCategoryChange(benchmark::State& state) {
    frmMain_07_Budget page;
    page.resize(1280, 720);
    page.show();
    page.LoadNow();
    const QStringList ids = [] {
        QStringList keys;
        const clsRecordset rs =
            gDB().Execute(QStringLiteral("SELECT BUDGET_CATEGORY_ID FROM BUDGET_CATEGORY_DICT"));
        for (int row = 0; row < rs.RowCount(); ++row)
            keys << rs.Value(row, 0);
        return keys;
    }();
    qsizetype next = 0;
    for (auto _ : state) {
        page.SelectCategory(ids[next++ % ids.size()]);
        QPixmap painted = page.grab();
        benchmark::DoNotOptimize(painted);
    }
}
BENCHMARK(BM_BudgetCategoryChange)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return RunOnDemoWedding(argc, argv, "vowren-bench-budget", GrowTheWedding);
}
