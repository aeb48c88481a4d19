#include "PlanningTestTools.h"
#include "planning/clsBUDGET.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"

#include <QtTest>
#include <memory>

// Category ids of the seeded categories.
static const QString kStationery = QStringLiteral("1");
static const QString kFashion = QStringLiteral("2");
static const QString kFlowers = QStringLiteral("5");
static const QString kHoneymoon = QStringLiteral("9");
// Payer ids of the seeded payers.
static const QString kBride = QStringLiteral("1");
static const QString kGroom = QStringLiteral("2");
static const QString kBridesFamily = QStringLiteral("4");

class tst_clsBUDGET : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

    static clsBUDGET Expense(const QString& name, const QString& amount, const QString& category,
                             const QString& payer, const QString& due, const QString& paid = QString()) {
        clsBUDGET expense;
        expense.ITEM_NM = name;
        expense.ACTUAL_AMOUNT_NB = amount;
        expense.BUDGET_CATEGORY_ID = category;
        expense.PAID_BY_ID = payer;
        expense.DUE_DT = due;
        expense.PAID_DT = paid;
        return expense;
    }
    static void Add(clsBUDGET expense) { expense.Save(true); }
    static QStringList Names(const QList<clsBUDGET>& expenses) {
        return Pluck(expenses, &clsBUDGET::ITEM_NM);
    }

    // Today is 10 May 2027. Invitations: 120.50 due, 80 paid. Dress: 1500 paid, shoes 99.99 due today,
    // veil 200 past due. Bouquet 300 due later. Nothing in the honeymoon.
    void AddLedger() {
        SetNowForTesting(QDateTime(QDate(2027, 5, 10), QTime(18, 0)));
        Add(Expense("Invitations", "120.50", kStationery, kBride, "01-Jun-2027"));
        Add(Expense("Save the dates", "80", kStationery, kGroom, "01-Jan-2027", "02-Jan-2027"));
        Add(Expense("Dress", "1500", kFashion, kBridesFamily, "01-Feb-2027", "15-Jan-2027"));
        Add(Expense("shoes", "99.99", kFashion, kBride, "10-May-2027"));
        Add(Expense("Veil", "200", kFashion, kBride, "09-May-2027 11:00 PM"));
        Add(Expense("Bouquet", "300", kFlowers, kBridesFamily, "01-Jun-2027"));
    }

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void sumsPerCategory_data() {
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("actual");
        QTest::addColumn<QString>("due");
        QTest::addColumn<QString>("paid");
        QTest::newRow("stationery") << kStationery << "200.50" << "120.50" << "80.00";
        QTest::newRow("fashion") << kFashion << "1799.99" << "299.99" << "1500.00";
        QTest::newRow("honeymoon, nothing yet") << kHoneymoon << "0.00" << "0.00" << "0.00";
        QTest::newRow("all categories") << QString() << "2300.49" << "720.49" << "1580.00";
    }
    void sumsPerCategory() {
        QFETCH(QString, category);
        QFETCH(QString, actual);
        QFETCH(QString, due);
        QFETCH(QString, paid);
        AddLedger();
        QCOMPARE(clsBUDGET_CATEGORY_DICT::TotalSumActual(category).Stored(), actual);
        QCOMPARE(clsBUDGET_CATEGORY_DICT::TotalSumDue(category).Stored(), due);
        QCOMPARE(clsBUDGET_CATEGORY_DICT::TotalSumPaid(category).Stored(), paid);
        // The one query of the page's grid gives the same figures.
        for (const clsBudgetCategorySums& sums : clsBUDGET_CATEGORY_DICT::OpenSums()) {
            if (sums.BUDGET_CATEGORY_ID == category) {
                QCOMPARE(sums.Actual().Stored(), actual);
                QCOMPARE(sums.Due.Stored(), due);
            }
        }
    }

    void sumsPerPayer_data() {
        QTest::addColumn<QString>("payer");
        QTest::addColumn<QString>("sum");
        QTest::newRow("bride") << kBride << "420.49";
        QTest::newRow("bride's family") << kBridesFamily << "1800.00";
        QTest::newRow("no payer") << "" << "0.00";
    }
    void sumsPerPayer() {
        QFETCH(QString, payer);
        QFETCH(QString, sum);
        AddLedger();
        QCOMPARE(clsBUDGET_CATEGORY_DICT::TotalSumByPaidBy(payer).Stored(), sum);
    }

    void estimatesAndTheirShares() {
        QVERIFY(clsBUDGET_CATEGORY_DICT::TotalSumEstimates().IsZero());
        // With no estimates every share is 0, never a division by zero.
        QCOMPARE(clsBUDGET_CATEGORY_DICT::GetESTIMATE_PERCENT({}, {}), 0.0);
        QCOMPARE(clsBUDGET_CATEGORY_DICT::GetESTIMATE_PERCENT(clsMoney::FromCents(50000), {}), 0.0);

        const QList<QPair<QString, QString>> estimates = {
            {kStationery, "400"}, {kFashion, "2500.75"}, {kFlowers, "1099.25"}};
        for (const auto& [id, amount] : estimates) {
            clsBUDGET_CATEGORY_DICT category;
            QVERIFY(category.OpenRecord(id));
            category.ESTIMATE_AMOUNT_NB = amount;
            category.Save(false);
        }
        const clsMoney total = clsBUDGET_CATEGORY_DICT::TotalSumEstimates();
        QCOMPARE(total.Cents(), 400000);
        clsBUDGET_CATEGORY_DICT fashion;
        QVERIFY(fashion.OpenRecord(kFashion));
        QCOMPARE(fashion.BUDGET_CATEGORY_TX, QStringLiteral("Fashion"));
        QCOMPARE(fashion.Estimate().Cents(), 250075);
        QCOMPARE(clsBUDGET_CATEGORY_DICT::GetESTIMATE_PERCENT(fashion.Estimate(), total),
                 2500.75 / 4000.0);
        double shares = 0;
        for (const clsBUDGET_CATEGORY_DICT& category : clsBUDGET_CATEGORY_DICT().OpenRecords())
            shares +=
                clsBUDGET_CATEGORY_DICT::GetESTIMATE_PERCENT(category.Estimate(), total);
        QVERIFY(qAbs(shares - 1.0) < 1e-12);
    }

    void filtersForTheSelectedCategory_data() {
        QTest::addColumn<QString>("category");
        QTest::addColumn<int>("filter");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("all") << "" << int(clsBUDGET::AllExpenses)
                             << QStringList(
                                    {"Dress", "shoes", "Veil", "Bouquet", "Invitations", "Save the dates"});
        QTest::newRow("due") << "" << int(clsBUDGET::Due)
                             << QStringList({"shoes", "Veil", "Bouquet", "Invitations"});
        QTest::newRow("past due: yesterday, not today")
            << "" << int(clsBUDGET::Pastdue) << QStringList({"Veil"});
        QTest::newRow("paid") << "" << int(clsBUDGET::Paid) << QStringList({"Dress", "Save the dates"});
        QTest::newRow("fashion, all")
            << kFashion << int(clsBUDGET::AllExpenses) << QStringList({"Dress", "shoes", "Veil"});
        QTest::newRow("stationery, due")
            << kStationery << int(clsBUDGET::Due) << QStringList({"Invitations"});
    }
    void filtersForTheSelectedCategory() {
        QFETCH(QString, category);
        QFETCH(int, filter);
        QFETCH(QStringList, names);
        AddLedger();
        QCOMPARE(Names(clsBUDGET().OpenRecordsByCategory(filter, category)), names);
        QCOMPARE(clsBUDGET().Total(filter, category), long(names.size()));
    }

    void pastDueAgreesWithTheFilter() {
        AddLedger();
        const QStringList pastdue = Names(clsBUDGET().OpenRecordsByCategory(clsBUDGET::Pastdue));
        for (const clsBUDGET& expense : clsBUDGET().OpenRecordsByCategory(clsBUDGET::AllExpenses))
            QCOMPARE(expense.PASTDUE(), pastdue.contains(expense.ITEM_NM));
    }

    void pastDue_data() {
        QTest::addColumn<QString>("due");
        QTest::addColumn<QString>("paid");
        QTest::addColumn<bool>("pastdue");
        QTest::newRow("due yesterday, unpaid") << "09-May-2027"
                                               << "" << true;
        QTest::newRow("due today, unpaid") << "10-May-2027"
                                           << "" << false;
        QTest::newRow("due today late in the day") << "10-May-2027 11:30 PM"
                                                   << "" << false;
        QTest::newRow("due last year, paid") << "09-May-2026"
                                             << "01-May-2026" << false;
        QTest::newRow("no due date") << ""
                                     << "" << false;
    }
    void pastDue() {
        QFETCH(QString, due);
        QFETCH(QString, paid);
        QFETCH(bool, pastdue);
        clsBUDGET expense = Expense("x", "1", kStationery, kBride, due, paid);
        QCOMPARE(expense.PASTDUE(QDate(2027, 5, 10)), pastdue);
    }

    void reportOrders() {
        AddLedger();
        // By payer (dictionary text), then category, then name.
        QCOMPARE(Names(clsBUDGET().OpenRecords(clsBUDGET::AllExpenses, true)),
                 QStringList({"shoes", "Veil", "Invitations", "Dress", "Bouquet", "Save the dates"}));
        // Under "Due", by due date first.
        QCOMPARE(Names(clsBUDGET().OpenRecords(clsBUDGET::Due, false)),
                 QStringList({"Veil", "shoes", "Bouquet", "Invitations"}));
        QCOMPARE(Names(clsBUDGET().OpenRecords(clsBUDGET::Paid, false, kFashion)), QStringList({"Dress"}));
    }

    void joinedTextsAndFormats() {
        TestDatabase::Exec(
            "INSERT INTO VENDOR (VENDOR_ID, VENDOR_NM, VENDOR_CATEGORY_ID) VALUES (1, 'Bloom & Co', 6)");
        clsBUDGET expense =
            Expense("Bouquet", "300.25", kFlowers, kBridesFamily, "01-Jun-2027", "02-Jun-2027 4:15 PM");
        expense.VENDOR_ID = QStringLiteral("1");
        expense.Save(true);
        clsBUDGET again;
        QVERIFY(again.OpenRecord(expense.BUDGET_ID));
        QCOMPARE(again.VENDOR_ID, QStringLiteral("1"));
        QCOMPARE(again.BUDGET_CATEGORY_ID, kFlowers);
        QCOMPARE(again.PAID_BY_ID, kBridesFamily);
        QCOMPARE(again.VENDOR_NM, QStringLiteral("Bloom & Co"));
        QCOMPARE(again.BUDGET_CATEGORY_TX, QStringLiteral("Flowers"));
        QCOMPARE(again.PAID_BY_TX, QStringLiteral("Bride's Family"));
        QCOMPARE(again.Amount().Cents(), 30025);
        QCOMPARE(again.DUE_DT_DDMMMYYYY(), QStringLiteral("01-Jun-2027"));
        QCOMPARE(again.PAID_DT_DDMMMYYYY(), QStringLiteral("02-Jun-2027"));
    }

    void anExpenseWithoutCategoryShowsNone() {
        clsBUDGET expense = Expense("Tips", "50", QString(), kGroom, "05-Jun-2027");
        expense.Save(true);
        clsBUDGET again;
        QVERIFY(again.OpenRecord(expense.BUDGET_ID));
        QCOMPARE(again.BUDGET_CATEGORY_TX, QStringLiteral("(none)"));
        QCOMPARE(clsBUDGET_CATEGORY_DICT::TotalSumActual().Cents(), 5000);
    }

    void aCategoryInUseCannotBeDeletedAlone() {
        AddLedger();
        // The dictionary editor deletes the row alone, and the database refuses.
        QVERIFY(!RecordIO::Attempt(
            [&] { RecordIO::Delete("BUDGET_CATEGORY_DICT", "BUDGET_CATEGORY_ID", kFashion); }));
        QCOMPARE(db->Messages().Prompts,
                 QStringList({"Unable to delete.  Budget entries are associated with this entry."}));
        QCOMPARE(PlanningDatabase::Count("BUDGET_CATEGORY_DICT"), QStringLiteral("10"));
        QCOMPARE(PlanningDatabase::Count("BUDGET"), QStringLiteral("6"));
        // So does deleting a payer that expenses name.
        QVERIFY(!RecordIO::Attempt([&] { RecordIO::Delete("PAID_BY_DICT", "PAID_BY_ID", kBride); }));
        QCOMPARE(db->Messages().Prompts.size(), 2);
        QCOMPARE(db->Messages().Prompts.last(),
                 QStringLiteral("Unable to delete.  Budget entries are associated with this entry."));
    }

    void deletingACategoryOnTheBudgetPageTakesItsExpenses() {
        AddLedger();
        clsBUDGET_CATEGORY_DICT().Delete(kFashion);
        QCOMPARE(PlanningDatabase::Count("BUDGET_CATEGORY_DICT"), QStringLiteral("9"));
        QCOMPARE(Names(clsBUDGET().OpenRecordsByCategory(clsBUDGET::AllExpenses)),
                 QStringList({"Bouquet", "Invitations", "Save the dates"}));
        QCOMPARE(clsBUDGET_CATEGORY_DICT::TotalSumActual().Cents(), 50050);
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void newCategoryKeys_data() {
        QTest::addColumn<bool>("assignNewKey");
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("key");
        QTest::newRow("a new key") << true << "42"
                                   << "11";
        QTest::newRow("the key of the object") << false << "42"
                                               << "42";
    }
    void newCategoryKeys() {
        QFETCH(bool, assignNewKey);
        QFETCH(QString, given);
        QFETCH(QString, key);
        clsBUDGET_CATEGORY_DICT category;
        category.BUDGET_CATEGORY_ID = given;
        category.BUDGET_CATEGORY_TX = QStringLiteral("Cake");
        category.ESTIMATE_AMOUNT_NB = QStringLiteral("0");
        category.Save(true, assignNewKey);
        QCOMPARE(category.BUDGET_CATEGORY_ID, key);
        QCOMPARE(
            TestDatabase::Scalar(
                "SELECT BUDGET_CATEGORY_TX FROM BUDGET_CATEGORY_DICT WHERE BUDGET_CATEGORY_ID = ?", {key}),
            QStringLiteral("Cake"));
    }

    void aDuplicateCategoryNameIsRefused_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("other case") << "MUSIC";
    }
    void aDuplicateCategoryNameIsRefused() {
        QFETCH(QString, name);
        clsBUDGET_CATEGORY_DICT category;
        category.BUDGET_CATEGORY_TX = name;
        QVERIFY(!RecordIO::Attempt([&] { category.Save(true); }));
        QVERIFY(category.BUDGET_CATEGORY_ID.isEmpty());
        QCOMPARE(db->Messages().Prompts, QStringList({"Duplicate value.  Ensure that entry is unique."}));
        QCOMPARE(clsBUDGET_CATEGORY_DICT().Total(), 10L);
    }
};

QTEST_GUILESS_MAIN(tst_clsBUDGET)
#include "tst_clsBUDGET.moc"
