#include "TestDatabase.h"
#include "UiTestTools.h"
#include "planning/PlanningTestTools.h"
#include "planning/clsTASK.h"
#include "planning/ui/frmMain_06_Checklist.h"
#include "planning/ui/frmTask.h"
#include "shell/controls/usrDate.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>
#include <memory>

namespace {

using Page = frmMain_06_Checklist;

// Frame 1 holds a, b, c in that order, frame 2 holds d and e; c is done.
void FiveTasks() {
    TestDatabase::Exec("DELETE FROM TASK");
    TestDatabase::Exec(
        "INSERT INTO TASK (TASK_ID, TASK_NM, TASK_GROUP_ID, DUE_DT, COMPLETED_FG, SORT_ORDER_NB) VALUES "
        "(11, 'a', 1, NULL, 'N', 1), (12, 'b', 1, NULL, 'N', 2), (13, 'c', 1, NULL, 'Y', 3), "
        "(14, 'd', 2, '2027-01-10', 'N', 4), (15, 'e', 2, NULL, 'N', 5)");
}

// The task names in the order of their numbers in the database.
QString StoredOrder() {
    return TestDatabase::Scalar("SELECT group_concat(TASK_NM, '') FROM (SELECT TASK_NM FROM TASK ORDER BY "
                                "SORT_ORDER_NB)");
}

QString Numbers() {
    return TestDatabase::Scalar("SELECT group_concat(SORT_ORDER_NB, ',') FROM (SELECT SORT_ORDER_NB FROM "
                                "TASK ORDER BY SORT_ORDER_NB)");
}

// The names as the grid shows them, record rows only.
QString ShownOrder(usrGrid* grid) {
    QString names;
    grid->Model()->ForEachRow([&](const clsGridRow& row) {
        if (!row.IsGroup)
            names += row.Cell(Page::TASK_NM);
    });
    return names;
}

void ClickCheck(usrGrid* grid, qint64 key) {
    const QModelIndex row = grid->Model()->FindRecord(key);
    const QModelIndex cell = grid->FromSource(row.siblingAtColumn(Page::CHECK));
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(cell).center());
}

QString Stat(const QWidget& page, int filter) {
    return UiTestTools::Child<QLabel>(page, QStringLiteral("lblStat_%1").arg(filter))->text();
}

std::unique_ptr<Page> OpenPage(int filter = clsTASK::AllTasks) {
    auto page = std::make_unique<Page>();
    page->resize(900, 600);
    UiTestTools::ShowActive(page.get());
    page->LoadNow();
    page->SetFilter(filter);
    return page;
}

void Select(Page& page, const QString& key) {
    UiTestTools::SelectRecords(page.Grid(), {key});
    page.Grid()->setFocus();
}

} // namespace

class tst_ChecklistPage : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

private slots:
    void init() {
        db = std::make_unique<PlanningDatabase>();
        FiveTasks();
    }
    void cleanup() { db.reset(); }

    void tickStrikesThroughAndStaysUntilReload() {
        auto page = OpenPage(clsTASK::Open);
        QCOMPARE(ShownOrder(page->Grid()), QStringLiteral("abde"));
        ClickCheck(page->Grid(), 12);
        QCOMPARE(TestDatabase::Scalar("SELECT COMPLETED_FG FROM TASK WHERE TASK_ID = 12"),
                 QStringLiteral("Y"));
        const clsGridRow* row = page->Grid()->Model()->RowAt(page->Grid()->Model()->FindRecord(12));
        QVERIFY(row->StrikeOut);
        QCOMPARE(ShownOrder(page->Grid()), QStringLiteral("abde"));
        QCOMPARE(Stat(*page, clsTASK::Open), QStringLiteral("3"));
        QCOMPARE(Stat(*page, clsTASK::Completed), QStringLiteral("2"));

        ClickCheck(page->Grid(), 12);
        QCOMPARE(TestDatabase::Scalar("SELECT COMPLETED_FG FROM TASK WHERE TASK_ID = 12"),
                 QStringLiteral("N"));
        QVERIFY(!page->Grid()->Model()->RowAt(page->Grid()->Model()->FindRecord(12))->StrikeOut);
        page->Reload();
        QCOMPARE(ShownOrder(page->Grid()), QStringLiteral("abde"));

        // Space in the list does what the click did.
        Select(*page, QStringLiteral("12"));
        QTest::keyClick(page->Grid(), Qt::Key_Space);
        QCOMPARE(TestDatabase::Scalar("SELECT COMPLETED_FG FROM TASK WHERE TASK_ID = 12"),
                 QStringLiteral("Y"));
    }

    void ctrlArrowsReorderAfterTheTimer_data() {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QList<int>>("steps");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("stored");
        const QList<int> down = {Qt::Key_Down};
        QTest::newRow("down one") << 0 << "11" << down << "bacde"
                                  << "bacde";
        QTest::newRow("down twice, up once")
            << 0 << "11" << QList<int>{Qt::Key_Down, Qt::Key_Down, Qt::Key_Up} << "bacde"
            << "bacde";
        QTest::newRow("the last of a frame stays in it") << 0 << "13" << down << "abcde"
                                                         << "abcde";
        QTest::newRow("the first of a frame stays in it") << 0 << "14" << QList<int>{Qt::Key_Up} << "abcde"
                                                          << "abcde";
        QTest::newRow("a hidden task keeps its place") << 1 << "11" << down << "bade"
                                                       << "bacde";
        QTest::newRow("under a filter, up past a hidden task")
            << 1 << "15" << QList<int>{Qt::Key_Up} << "abed"
            << "abced";
    }
    void ctrlArrowsReorderAfterTheTimer() {
        QFETCH(int, filter);
        QFETCH(QString, key);
        QFETCH(QList<int>, steps);
        QFETCH(QString, shown);
        QFETCH(QString, stored);
        auto page = OpenPage(filter);
        Select(*page, key);
        for (int step : steps)
            QTest::keyClick(page->Grid(), Qt::Key(step), Qt::ControlModifier);
        QCOMPARE(ShownOrder(page->Grid()), shown);
        auto* timer = UiTestTools::Child<QTimer>(*page, "tmrSort");
        const bool moved = shown != QStringLiteral("abcde") && shown != QStringLiteral("abde");
        QCOMPARE(timer->isActive(), moved);
        if (moved)
            QCOMPARE(StoredOrder(), QStringLiteral("abcde")); // nothing written before the timer fires
        QTRY_VERIFY_WITH_TIMEOUT(!timer->isActive(), 2000);
        QCOMPARE(StoredOrder(), stored);
        QCOMPARE(Numbers(), QStringLiteral("1,2,3,4,5"));
        // The "#" column shows what was written.
        page->Grid()->Model()->ForEachRow([](const clsGridRow& row) {
            if (!row.IsGroup)
                QCOMPARE(
                    row.Cell(Page::SORT_ORDER_NB),
                    TestDatabase::Scalar("SELECT SORT_ORDER_NB FROM TASK WHERE TASK_ID = ?", {row.ItemData}));
        });
    }

    void aPendingOrderIsWrittenOnLeavingAndOnReload() {
        auto page = OpenPage();
        Select(*page, "12");
        QTest::keyClick(page->Grid(), Qt::Key_Up, Qt::ControlModifier);
        page->Leaving();
        QCOMPARE(StoredOrder(), QStringLiteral("bacde"));

        Select(*page, "15");
        QTest::keyClick(page->Grid(), Qt::Key_Up, Qt::ControlModifier);
        page->Reload();
        QCOMPARE(StoredOrder(), QStringLiteral("baced"));
        QCOMPARE(ShownOrder(page->Grid()), QStringLiteral("baced"));
    }

    void deleteAsksThenCloseTheGap_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("numbers");
        QTest::newRow("yes") << int(Msg::Yes) << "acde"
                             << "1,2,3,4";
        QTest::newRow("no") << int(Msg::No) << "abcde"
                            << "1,2,3,4,5";
    }
    void deleteAsksThenCloseTheGap() {
        QFETCH(int, answer);
        QFETCH(QString, stored);
        QFETCH(QString, numbers);
        auto page = OpenPage();
        Select(*page, "12");
        db->Messages().NextAnswer = answer;
        QTest::keyClick(page->Grid(), Qt::Key_Delete);
        QCOMPARE(db->Messages().Prompts, QStringList{"Delete Task?"});
        QCOMPARE(db->Messages().Titles, QStringList{"Delete"});
        QCOMPARE(StoredOrder(), stored);
        QCOMPARE(Numbers(), numbers);
        QCOMPARE(ShownOrder(page->Grid()), stored);
    }

    void refreshDueDatesAsksWithTheWeddingDate() {
        PlanningDatabase::SetWeddingDate("05-Jun-2027 3:00 PM");
        auto page = OpenPage();
        db->Messages().NextAnswer = Msg::Yes;
        page->cmdRefreshDueDates_Click();
        QCOMPARE(db->Messages().Prompts,
                 QStringList{"Refresh All Due Dates based on wedding date of: 05-Jun-2027?"});
        QCOMPARE(db->Messages().Titles, QStringList{"Vowren"});
        // The hand-set date of d and the completed c follow their frames.
        QCOMPARE(TestDatabase::Scalar("SELECT DUE_DT FROM TASK WHERE TASK_ID = 14"),
                 QStringLiteral("07-Dec-2026"));
        QCOMPARE(TestDatabase::Scalar("SELECT DUE_DT FROM TASK WHERE TASK_ID = 13"),
                 QStringLiteral("09-Aug-2026"));
        const QModelIndex row = page->Grid()->Model()->FindRecord(14);
        QCOMPARE(page->Grid()->Model()->RowAt(row)->Cell(Page::DUE_DT), QStringLiteral("07-Dec-2026"));
    }

    void breadcrumbNamesTheFilter_data() {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("crumb");
        QTest::newRow("all") << int(clsTASK::AllTasks) << "Checklist";
        QTest::newRow("current") << int(clsTASK::Current) << "Checklist>Current";
        QTest::newRow("completed") << int(clsTASK::Completed) << "Checklist>Completed";
    }
    void breadcrumbNamesTheFilter() {
        QFETCH(int, filter);
        QFETCH(QString, crumb);
        Page page;
        QSignalSpy crumbs(&page, &usrPage::Breadcrumb);
        page.LoadNow();
        page.SetFilter(filter);
        QCOMPARE(crumbs.last().first().toString(), crumb);
    }

    void aNewTaskStartsInTheCurrentFrameAndSaveAndNewKeepsIt() {
        SetNowForTesting(QDateTime(QDate(2027, 5, 26), QTime(9, 0))); // ten days left: frame 7
        PlanningDatabase::SetWeddingDate("05-Jun-2027");
        frmTask editor(QString{});
        QSignalSpy added(&editor, &frmEditorBase::Added);
        auto* frame = UiTestTools::Child<usrDropdown>(editor, "usrTASK_GROUP_DICT");
        auto* save = UiTestTools::Child<QPushButton>(editor, "cmdSaveAndNew");
        QCOMPARE(frame->Code(), QStringLiteral("7"));
        QVERIFY(UiTestTools::Child<usrDate>(editor, "usrDate")->Text().isEmpty());
        QVERIFY(!save->isEnabled());
        QTest::keyClicks(UiTestTools::Child<QLineEdit>(editor, "txtTASK_NM"), "   ");
        QVERIFY(!save->isEnabled());
        QTest::keyClicks(UiTestTools::Child<QLineEdit>(editor, "txtTASK_NM"), "Book the band ");
        QVERIFY(save->isEnabled());
        QTest::mouseClick(save, Qt::LeftButton);
        QCOMPARE(added.size(), 1);
        const QString id = added.first().first().toString();
        QCOMPARE(
            TestDatabase::Scalar("SELECT TASK_NM || '|' || TASK_GROUP_ID || '|' || COMPLETED_FG || '|' || "
                                 "ifnull(DUE_DT, '') FROM TASK WHERE TASK_ID = ?",
                                 {id}),
            QStringLiteral("Book the band|7|N|"));
        QVERIFY(UiTestTools::Child<QLineEdit>(editor, "txtTASK_NM")->text().isEmpty());
        QCOMPARE(frame->Code(), QStringLiteral("7"));
        QVERIFY(!save->isEnabled());
        QCOMPARE(editor.windowTitle(), QStringLiteral("Add New Task"));
    }

    // The box in front of the date switches it on at today's date and off again.
    void theDueDateIsSwitchedOnAndOff() {
        SetNowForTesting(QDateTime(QDate(2027, 2, 3), QTime(9, 0)));
        frmTask editor(QStringLiteral("15"));
        auto* date = UiTestTools::Child<usrDate>(editor, "usrDate");
        auto* box = UiTestTools::Child<QCheckBox>(date, "chkDate");
        QVERIFY(date->Text().isEmpty());
        QVERIFY(!UiTestTools::Child<QWidget>(date, "dtpDate")->isEnabled());
        UiTestTools::Toggle(box);
        QCOMPARE(date->Text(), QStringLiteral("03-Feb-2027"));
        QVERIFY(UiTestTools::Child<QPushButton>(editor, "cmdSave")->isEnabled());
        UiTestTools::Toggle(box);
        QVERIFY(date->Text().isEmpty());
        QVERIFY(!UiTestTools::Child<QPushButton>(editor, "cmdSave")->isEnabled());
    }

    void editingSavesOnlyAChange() {
        frmTask editor(QStringLiteral("14"));
        QCOMPARE(editor.windowTitle(), QStringLiteral("Edit Task"));
        QCOMPARE(UiTestTools::Child<usrDate>(editor, "usrDate")->Text(), QStringLiteral("10-Jan-2027"));
        auto* save = UiTestTools::Child<QPushButton>(editor, "cmdSave");
        QVERIFY(!save->isEnabled());
        UiTestTools::Toggle(UiTestTools::Child<QCheckBox>(editor, "chkCOMPLETED_FG"));
        QVERIFY(save->isEnabled());
        UiTestTools::Child<usrDate>(editor, "usrDate")->SetDate(QDate());
        QTest::mouseClick(save, Qt::LeftButton);
        QCOMPARE(TestDatabase::Scalar(
                     "SELECT COMPLETED_FG || '|' || ifnull(DUE_DT, '') FROM TASK WHERE TASK_ID = 14"),
                 QStringLiteral("Y|"));
    }
};

QTEST_MAIN(tst_ChecklistPage)
#include "tst_ChecklistPage.moc"
