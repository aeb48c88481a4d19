#include "UiTestTools.h"
#include "planning/PlanningTestTools.h"
#include "planning/clsBUDGET.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/ui/frmBudget.h"
#include "planning/ui/frmMain_07_Budget.h"
#include "planning/ui/modBudgetCharts.h"
#include "planning/ui/usrMoneyBox.h"
#include "reports/clsRTFBudgetCategory.h"
#include "reports/modReportRunner.h"
#include "shell/controls/usrDate.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/usrGrid.h"

#include <QBarCategoryAxis>
#include <QBarSet>
#include <QChart>
#include <QFile>
#include <QHorizontalBarSeries>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPieSeries>
#include <QPushButton>
#include <QSplitter>
#include <QtTest>
#include <memory>

namespace {

using Page = frmMain_07_Budget;
const QString kStationery = QStringLiteral("1");
const QString kFashion = QStringLiteral("2");
const QString kFlowers = QStringLiteral("5");

void AddExpense(const QString& id, const QString& name, const QString& amount, const QString& category,
                const QString& due, const QString& paid = QString()) {
    TestDatabase::Exec(
        "INSERT INTO BUDGET (BUDGET_ID, ITEM_NM, ACTUAL_AMOUNT_NB, BUDGET_CATEGORY_ID, PAID_BY_ID, "
        "DUE_DT, PAID_DT) VALUES (?, ?, ?, ?, 4, ?, ?)",
        {id, name, amount, category, due, paid.isEmpty() ? QVariant() : QVariant(paid)});
}

void SetEstimate(const QString& category, const QString& amount) {
    TestDatabase::Exec("UPDATE BUDGET_CATEGORY_DICT SET ESTIMATE_AMOUNT_NB = ? WHERE BUDGET_CATEGORY_ID = ?",
                       {amount, category});
}

// Today is 10 May 2027: the veil fell due yesterday, the shoes today.
void AddLedger() {
    SetNowForTesting(QDateTime(QDate(2027, 5, 10), QTime(12, 0)));
    AddExpense("1", "Invitations", "120.50", kStationery, "2027-06-01");
    AddExpense("2", "Dress", "1500", kFashion, "2027-02-01", "2027-01-15");
    AddExpense("3", "Shoes", "99.99", kFashion, "2027-05-10");
    AddExpense("4", "Veil", "200", kFashion, "2027-05-09");
}

QString Cell(usrGrid* grid, qint64 key, int column) {
    const QModelIndex row = grid->Model()->FindRecord(key);
    return row.isValid() ? grid->Model()->RowAt(row)->Cell(column) : QStringLiteral("<none>");
}

QString Stat(const QWidget* page, int filter) {
    return UiTestTools::Child<QLabel>(page, QStringLiteral("lblStat_%1").arg(filter))->text();
}

void Click(const QWidget* page, int action) {
    QTest::mouseClick(UiTestTools::Child<usrHyperlink>(page, QStringLiteral("linkAction_%1").arg(action)),
                      Qt::LeftButton);
}

QList<qint64> Keys(usrGrid* grid) {
    QList<qint64> keys;
    grid->Model()->ForEachRow([&](const clsGridRow& row) {
        if (!row.IsGroup)
            keys << row.ItemData;
    });
    return keys;
}

} // namespace

class tst_BudgetPage : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

private slots:
    void init() {
        db = std::make_unique<PlanningDatabase>();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    void cleanup() { db.reset(); }

    // The estimate's share, the sums and "+/-" of a category row and of "Totals", which stays last.
    void categoryFigures_data() {
        QTest::addColumn<QString>("fashionEstimate");
        QTest::addColumn<QString>("share");
        QTest::addColumn<QString>("remaining");
        QTest::addColumn<QString>("totalsShare");
        QTest::newRow("no estimates at all") << "0"
                                             << "0.00%"
                                             << "($1,799.99)"
                                             << "100.00%";
        QTest::newRow("a quarter of the estimates") << "1000"
                                                    << "25.00%"
                                                    << "($799.99)"
                                                    << "100.00%";
        QTest::newRow("spent to the cent") << "1799.99"
                                           << "36.24%"
                                           << "$0.00"
                                           << "100.00%";
    }
    void categoryFigures() {
        QFETCH(QString, fashionEstimate);
        QFETCH(QString, share);
        QFETCH(QString, remaining);
        QFETCH(QString, totalsShare);
        AddLedger();
        SetEstimate(kFashion, fashionEstimate);
        if (fashionEstimate != "0")
            SetEstimate(kFlowers, fashionEstimate == "1000" ? "3000" : "3166.70");
        Page page;
        page.LoadNow();
        usrGrid* top = page.GridTop();
        QCOMPARE(Cell(top, 2, Page::ESTIMATE_PERCENT_NB), share);
        QCOMPARE(Cell(top, 2, Page::DUE_AMOUNT_NB), QStringLiteral("$299.99"));
        QCOMPARE(Cell(top, 2, Page::PAID_AMOUNT_NB), QStringLiteral("$1,500.00"));
        QCOMPARE(Cell(top, 2, Page::ACTUAL_AMOUNT_NB), QStringLiteral("$1,799.99"));
        QCOMPARE(Cell(top, 2, Page::REMAINING), remaining);
        QCOMPARE(Cell(top, 9, Page::ESTIMATE_PERCENT_NB), QStringLiteral("0.00%"));
        QCOMPARE(Keys(top).last(), qint64(0));
        QCOMPARE(Cell(top, 0, Page::CATEGORY_TX), QStringLiteral("Totals"));
        QCOMPARE(Cell(top, 0, Page::ESTIMATE_PERCENT_NB), totalsShare);
        QCOMPARE(Cell(top, 0, Page::ACTUAL_AMOUNT_NB), QStringLiteral("$1,920.49"));
    }

    void theSelectedCategoryLeadsTheRest() {
        AddLedger();
        Page page;
        page.LoadNow();
        QCOMPARE(Keys(page.Grid()), QList<qint64>({2, 3, 4, 1}));
        QCOMPARE(Stat(&page, clsBUDGET::Pastdue), QStringLiteral("1"));
        QVERIFY(!UiTestTools::Child<usrHyperlink>(&page, "linkAction_1")->isEnabled());

        page.SelectCategory(kStationery);
        QCOMPARE(Keys(page.Grid()), QList<qint64>({1}));
        QCOMPARE(Stat(&page, clsBUDGET::AllExpenses), QStringLiteral("1"));
        QCOMPARE(Stat(&page, clsBUDGET::Pastdue), QStringLiteral("0"));
        QVERIFY(UiTestTools::Child<usrHyperlink>(&page, "linkAction_1")->isEnabled());
        // The bars of stationery stand out, and the list of categories reads top down as in the grid; so
        // does its slice of the ring.
        auto* bars = qobject_cast<QHorizontalBarSeries*>(page.BarChart()->series().first());
        auto* names = qobject_cast<QBarCategoryAxis*>(page.BarChart()->axes(Qt::Vertical).first());
        QCOMPARE(names->categories().first(), QStringLiteral("Stationery"));
        QCOMPARE(names->categories().last(), QStringLiteral("Ceremony"));
        QCOMPARE(bars->barSets().first()->selectedBars(), QList<int>({0}));
        QCOMPARE(bars->barSets().last()->selectedBars(), QList<int>({0}));
        auto* ring = qobject_cast<QPieSeries*>(page.RingChart()->series().first());
        QStringList exploded;
        for (QPieSlice* slice : ring->slices())
            if (slice->isExploded())
                exploded << slice->label();
        QCOMPARE(exploded, QStringList({"Stationery $120.50"}));
        QCOMPARE(page.RingChart()->title(), QStringLiteral("Stationery $120.50"));

        page.SelectCategory(QString()); // "Totals": every expense again
        QCOMPARE(Keys(page.Grid()).size(), 4);
    }

    // The report's picture is the page's bar chart, drawn without a window at the size the page asks.
    void theReportsChartIsDrawnOffscreen() {
        AddLedger();
        const QByteArray png = modBudgetCharts::BarsPng(clsBUDGET_CATEGORY_DICT::OpenSums(), QSize(900, 450));
        const QImage picture = QImage::fromData(png, "PNG");
        QCOMPARE(picture.size(), QSize(900, 450));
        QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::white));
        int coloured = 0;
        for (int x = 0; x < picture.width(); x += 3)
            for (int y = 0; y < picture.height(); y += 3)
                coloured += picture.pixelColor(x, y).saturation() > 60 ? 1 : 0;
        QVERIFY2(coloured > 200, qPrintable(QString::number(coloured))); // the bars of stationery and fashion
        clsRTFBudgetCategory::SetChartPainter(&modBudgetCharts::BarsPng);
        modReportRunner::ApplyOutput({});
        clsRTFBudgetCategory report;
        const QString file = report.Build();
        clsRTFBudgetCategory::SetChartPainter({});
        QFile written(file);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QVERIFY(written.readAll().contains("\\pngblip"));
    }

    void deletingAnExpenseAsksFirst_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("left");
        QTest::newRow("yes") << int(Msg::Yes) << "3";
        QTest::newRow("no") << int(Msg::No) << "4";
    }
    void deletingAnExpenseAsksFirst() {
        QFETCH(int, answer);
        QFETCH(QString, left);
        AddLedger();
        Page page;
        page.LoadNow();
        UiTestTools::SelectRecords(page.Grid(), {"4"});
        db->Messages().NextAnswer = answer;
        Click(&page, Page::DeleteExpense);
        QCOMPARE(db->Messages().Prompts, QStringList({"Delete budget expense?"}));
        QCOMPARE(db->Messages().Titles, QStringList({"Delete"}));
        QCOMPARE(PlanningDatabase::Count("BUDGET"), left);
        QCOMPARE(Keys(page.Grid()).size(), left.toInt());
        const QString actual = answer == Msg::Yes ? "$1,599.99" : "$1,799.99";
        QCOMPARE(Cell(page.GridTop(), 2, Page::ACTUAL_AMOUNT_NB), actual);
    }

    void deletingACategoryTakesItsExpensesAndSelectsTheRowAbove() {
        AddLedger();
        Page page;
        page.LoadNow();
        page.SelectCategory(kFashion); // second by name, after "Ceremony"
        db->Messages().NextAnswer = Msg::Yes;
        Click(&page, Page::DeleteCategory);
        QCOMPARE(db->Messages().Prompts,
                 QStringList({"Delete budget category Fashion and all related expenses?"}));
        QCOMPARE(PlanningDatabase::Count("BUDGET"), QStringLiteral("1"));
        QCOMPARE(PlanningDatabase::Count("BUDGET_CATEGORY_DICT"), QStringLiteral("9"));
        QCOMPARE(page.SelectedCategory(), QStringLiteral("3")); // Ceremony
    }

    void thePayerSubmenuTicksAndChanges() {
        AddLedger();
        Page page;
        page.show();
        page.LoadNow();
        UiTestTools::SelectRecords(page.Grid(), {"3"});
        auto* payers = UiTestTools::Child<QMenu>(&page, "mnuPaidByMaster");
        emit payers->aboutToShow();
        QStringList ticked;
        for (QAction* item : payers->actions())
            if (item->isChecked())
                ticked << item->text();
        QCOMPARE(ticked, QStringList({"Bride's Family"}));
        UiTestTools::Child<QAction>(&page, "mnuPaidBy_2")->trigger();
        QCOMPARE(TestDatabase::Scalar("SELECT PAID_BY_ID FROM BUDGET WHERE BUDGET_ID = 3"),
                 QStringLiteral("2"));
        QCOMPARE(Cell(page.Grid(), 3, Page::PAID_BY_TX), QStringLiteral("Groom"));
    }

    void theSplitterStopsNearTheTop() {
        Page page;
        page.resize(1000, 700);
        page.show();
        page.LoadNow();
        QSplitter* splitter = page.Splitter();
        QTRY_VERIFY(splitter->sizes().value(0) > 300); // the stored default, 5900 twips
        QSplitterHandle* handle = splitter->handle(1);
        const QPoint grip = handle->rect().center();
        QTest::mousePress(handle, Qt::LeftButton, {}, grip);
        QTest::mouseMove(handle, grip - QPoint(0, 2000));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, grip - QPoint(0, 2000));
        const double twips = splitter->sizes().value(0) * 1440.0 / page.logicalDpiY();
        QVERIFY2(twips >= Page::kSplitterTop - 15, qPrintable(QString::number(twips)));
        QVERIFY(splitter->sizes().value(0) < 100);
        page.Leaving();
        QVERIFY(gRegistry().GetSetting(FormRegistryKey("frmMain_07_Budget"), "Splitter", "0").toInt() >=
                Page::kSplitterTop);
    }

    void theExpenseEditorRefusesBeforeWriting_data() {
        QTest::addColumn<QString>("amount");
        QTest::addColumn<bool>("due");
        QTest::addColumn<QString>("message");
        QTest::newRow("no due date") << "12.50" << false << frmBudget::DueDateMissingText();
        QTest::newRow("amount in words")
            << "ten" << true << "\"ten\" is not an amount. Type it as a number, such as 1,234.50.";
        QTest::newRow("too many decimals")
            << "1.999" << true << "An amount has at most two decimals (cents): 1.999 has more.";
    }
    void theExpenseEditorRefusesBeforeWriting() {
        QFETCH(QString, amount);
        QFETCH(bool, due);
        QFETCH(QString, message);
        frmBudget editor(QString(), kFlowers);
        UiTestTools::Child<QLineEdit>(&editor, "txtITEM_NM")->setText("Bouquet");
        UiTestTools::Child<QLineEdit>(UiTestTools::Child<usrMoneyBox>(&editor, "usrACTUAL_AMOUNT_NB"), "txt")
            ->setText(amount);
        if (due)
            UiTestTools::Child<usrDate>(&editor, "usrDUE_DT")->SetDate(QDate(2027, 6, 1));
        QVERIFY(!editor.cmdSave_Click());
        QCOMPARE(db->Messages().Prompts, QStringList({message}));
        QCOMPARE(PlanningDatabase::Count("BUDGET"), QStringLiteral("0"));
    }

    void saveAndNewKeepsCategoryPayerAndDates() {
        frmBudget editor(QString(), kFlowers);
        QCOMPARE(editor.windowTitle(), QStringLiteral("Add New"));
        auto* payer = UiTestTools::Child<usrDropdown>(&editor, "usrPAID_BY_DICT");
        QCOMPARE(payer->Code(), QStringLiteral("4"));
        payer->setCode("1");
        UiTestTools::Child<QLineEdit>(&editor, "txtITEM_NM")->setText("Bouquet");
        UiTestTools::Child<QLineEdit>(UiTestTools::Child<usrMoneyBox>(&editor, "usrACTUAL_AMOUNT_NB"), "txt")
            ->setText("1,250.05");
        UiTestTools::Child<usrDate>(&editor, "usrDUE_DT")->SetDate(QDate(2027, 6, 1));
        QVERIFY(editor.cmdSaveAndNew_Click());
        QCOMPARE(
            TestDatabase::Scalar("SELECT ITEM_NM || '|' || ACTUAL_AMOUNT_NB || '|' || BUDGET_CATEGORY_ID || "
                                 "'|' || PAID_BY_ID || '|' || DUE_DT FROM BUDGET"),
            QStringLiteral("Bouquet|1250.05|5|1|2027-06-01"));
        QVERIFY(UiTestTools::Child<QLineEdit>(&editor, "txtITEM_NM")->text().isEmpty());
        QCOMPARE(UiTestTools::Child<usrDropdown>(&editor, "usrBUDGET_CATEGORY_DICT")->Code(), kFlowers);
        QCOMPARE(payer->Code(), QStringLiteral("1"));
        QCOMPARE(UiTestTools::Child<usrDate>(&editor, "usrDUE_DT")->Date(), QDate(2027, 6, 1));
    }
};

QTEST_MAIN(tst_BudgetPage)
#include "tst_BudgetPage.moc"
