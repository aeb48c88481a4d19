#include "FakeContactEditor.h"
#include "UiTestTools.h"
#include "planning/PlanningTestTools.h"
#include "planning/clsGIFT.h"
#include "planning/ui/frmGift.h"
#include "planning/ui/frmMain_05_Gifts.h"
#include "shell/controls/usrDate.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/grid/usrGrid.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QRadioButton>
#include <QtTest>
#include <memory>

namespace {

using Page = frmMain_05_Gifts;

// John Smith Jr. (contact 3) and the Carters (invitation 1); at the wedding the Smiths' toaster and the
// Carters' blender, at the shower (event 2) a second gift of the Smiths. No note written yet.
void AddGifts() {
    TestDatabase::Exec("INSERT INTO CONTACT (CONTACT_ID, TITLE_TX, FIRST_NM, MIDDLE_NM, LAST_NM, SUFFIX_TX) "
                       "VALUES (3, 'Mr.', 'John', 'Q', 'Smith', 'Jr.')");
    TestDatabase::Exec("INSERT INTO INVITE (INVITE_ID, DISPLAY_AS_TX, OUTER_ENVELOPE_TX) VALUES "
                       "(1, 'Carter, Tom and Lucy', 'Mr. and Mrs. Tom Carter')");
    TestDatabase::Exec("INSERT INTO CONTACT (CONTACT_ID, FIRST_NM, LAST_NM, INVITE_ID, PRIMARY_CONTACT_FG, "
                       "SORT_ORDER_NB) VALUES (5, 'Tom', 'Carter', 1, 'Y', 1)");
    TestDatabase::Exec("INSERT INTO EVENT (EVENT_ID, EVENT_TX) VALUES (2, 'Shower')");
    TestDatabase::Exec(
        "INSERT INTO GIFT (GIFT_ID, EVENT_ID, CONTACT_ID, INVITE_ID, GIFT_TX, THANK_YOU_SENT_FG) "
        "VALUES (1, 1, 3, NULL, 'Toaster', 'N'), (2, 1, NULL, 1, 'Blender', 'N'), "
        "(3, 2, 3, NULL, 'Towels', 'N')");
}

usrHyperlink* Link(const QWidget* page, int index) {
    return UiTestTools::Child<usrHyperlink>(page, QStringLiteral("linkAction_%1").arg(index));
}

QString Sent(const QString& id) {
    return TestDatabase::Scalar("SELECT THANK_YOU_SENT_FG FROM GIFT WHERE GIFT_ID = ?", {id});
}

} // namespace

class tst_GiftsPage : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

private slots:
    void init() {
        db = std::make_unique<PlanningDatabase>();
        AddGifts();
    }
    void cleanup() { db.reset(); }

    void markingThankYousWritesEverySelectedRow() {
        Page page;
        page.show();
        page.LoadNow();
        UiTestTools::SelectRecords(page.Grid(), {"1", "3"});
        QTest::mouseClick(Link(&page, Page::MarkThankYouSent), Qt::LeftButton);
        QCOMPARE(Sent("1") + Sent("2") + Sent("3"), QStringLiteral("YNY"));
        for (qint64 key : {1, 3}) {
            const QModelIndex row = page.Grid()->Model()->FindRecord(key);
            QCOMPARE(page.Grid()->Model()->RowAt(row)->Cell(Page::THANK_YOU_SENT_FG), QStringLiteral("Yes"));
        }
        QCOMPARE(page.Grid()->SelectedRows().size(), 2);
        QCOMPARE(UiTestTools::Child<QLabel>(&page, "lblStat_1")->text(), QStringLiteral("2"));
        QCOMPARE(UiTestTools::Child<QLabel>(&page, "lblStat_2")->text(), QStringLiteral("1"));

        // The submenu offers only the other state of the row under the mouse.
        auto* menu = UiTestTools::Child<QMenu>(&page, "mnuTHANK_YOU_SENT_FG");
        UiTestTools::SelectRecords(page.Grid(), {"3"});
        emit menu->aboutToShow();
        QVERIFY(!UiTestTools::Child<QAction>(&page, "mnuThankYouSent")->isEnabled());
        QVERIFY(UiTestTools::Child<QAction>(&page, "mnuThankYouUnsent")->isEnabled());
        UiTestTools::Child<QAction>(&page, "mnuThankYouUnsent")->trigger();
        QCOMPARE(Sent("3"), QStringLiteral("N"));
    }

    void deletingCountsTheSelection_data() {
        QTest::addColumn<QStringList>("selected");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("question");
        QTest::newRow("a contact's gift") << QStringList({"1"}) << "Delete gift"
                                          << "Delete 'Smith, John Q, Jr.'?";
        QTest::newRow("an invitation's gift") << QStringList({"2"}) << "Delete gift"
                                              << "Delete 'Carter, Tom and Lucy'?";
        QTest::newRow("two") << QStringList({"1", "2"}) << "Delete gifts (2)"
                             << "Delete 2 gifts?";
    }
    void deletingCountsTheSelection() {
        QFETCH(QStringList, selected);
        QFETCH(QString, caption);
        QFETCH(QString, question);
        Page page;
        page.show();
        page.LoadNow();
        UiTestTools::SelectRecords(page.Grid(), selected);
        QCOMPARE(Link(&page, Page::DeleteGift)->Caption(), caption);
        QCOMPARE(Link(&page, Page::EditGift)->isEnabled(), selected.size() == 1);
        db->Messages().NextAnswer = Msg::Yes;
        QTest::mouseClick(Link(&page, Page::DeleteGift), Qt::LeftButton);
        QCOMPARE(db->Messages().Prompts, QStringList({question}));
        QCOMPARE(PlanningDatabase::Count("GIFT"), QString::number(3 - selected.size()));
        QCOMPARE(UiTestTools::Child<QLabel>(&page, "lblStat_0")->text(),
                 QString::number(3 - selected.size()));
    }

    void saveAndNewKeepsTheEventAndTheKindOfGiver() {
        frmGift editor(QStringLiteral("2"));
        QVERIFY(UiTestTools::Child<QRadioButton>(&editor, "opt_1")->isChecked());
        QCOMPARE(UiTestTools::Child<QListWidget>(&editor, "lvw")->currentItem()->text(),
                 QStringLiteral("Carter, Tom and Lucy"));
        UiTestTools::Child<usrDropdown>(&editor, "usrEVENT")->setCode("2");
        UiTestTools::Child<QLineEdit>(&editor, "txtGIFT_TX")->setText("Blender and bowls");
        UiTestTools::Child<QCheckBox>(&editor, "chk")->setChecked(true);
        QVERIFY(editor.cmdSaveAndNew_Click());
        QCOMPARE(TestDatabase::Scalar(
                     "SELECT EVENT_ID || GIFT_TX || THANK_YOU_SENT_FG || coalesce(CONTACT_ID, '-') "
                     "FROM GIFT WHERE GIFT_ID = 2"),
                 QStringLiteral("2Blender and bowlsY-"));
        QVERIFY(UiTestTools::Child<QLineEdit>(&editor, "txtGIFT_TX")->text().isEmpty());
        QVERIFY(!UiTestTools::Child<QCheckBox>(&editor, "chk")->isChecked());
        QCOMPARE(UiTestTools::Child<usrDropdown>(&editor, "usrEVENT")->Code(), QStringLiteral("2"));
        QVERIFY(UiTestTools::Child<QRadioButton>(&editor, "opt_1")->isChecked());
        QCOMPARE(editor.windowTitle(), QStringLiteral("Add New Gift"));
    }

    // A giver who isn't a contact yet is added from the editor and comes back chosen, also while the
    // invitations are listed; nothing saved leaves the choice as it was.
    void anAddedContactBecomesTheGiver() {
        QString added;
        FakeContactEditor::Install([&added](const QString&, const QString&) {
            if (!added.isEmpty())
                TestDatabase::Exec("INSERT INTO CONTACT (CONTACT_ID, FIRST_NM, LAST_NM) VALUES (9, 'Ada', 'Zane')");
            return added;
        });
        frmGift editor(QStringLiteral("2"));
        auto* link = UiTestTools::Child<usrHyperlink>(&editor, "linkAddContact");
        auto* list = UiTestTools::Child<QListWidget>(&editor, "lvw");
        QVERIFY(link->isEnabled());
        link->Click(0);
        QCOMPARE(list->currentItem()->text(), QStringLiteral("Carter, Tom and Lucy"));
        added = "9";
        link->Click(0);
        QVERIFY(UiTestTools::Child<QRadioButton>(&editor, "opt_0")->isChecked());
        QCOMPARE(list->currentItem()->text(), QStringLiteral("Zane, Ada"));
        modContactEditor::SetFactory({});
        QVERIFY(!frmGift(QString()).findChild<usrHyperlink*>("linkAddContact")->isEnabled());
    }
};

QTEST_MAIN(tst_GiftsPage)
#include "tst_GiftsPage.moc"
