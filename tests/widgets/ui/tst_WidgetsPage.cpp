#include "TestDatabase.h"
#include "FakeContactEditor.h"
#include "UiTestTools.h"
#include "shell/controls/usrHyperlink.h"
#include "widgets/clsSONG.h"
#include "widgets/modWording.h"
#include "widgets/ui/frmCreateWPL.h"
#include "widgets/ui/frmMain_12_Widgets.h"
#include "widgets/ui/modWidgetLinks.h"
#include "widgets/ui/usrEventList.h"
#include "widgets/ui/usrSongsSide.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QtTest>
#include <memory>

using UiTestTools::Child;

namespace {

// The Smiths' invitation 1 (contacts 3 and 4), and contacts 5 and 6 on no invitation.
void AddGuests() {
    TestDatabase::Exec("INSERT INTO INVITE (INVITE_ID, INVITE_RSVP_ID, DISPLAY_AS_TX, OUTER_ENVELOPE_TX) "
                       "VALUES (1, 1, 'Smith, John and Mary', 'Mr. and Mrs. John Smith')");
    TestDatabase::Exec(
        "INSERT INTO CONTACT (CONTACT_ID, TITLE_TX, FIRST_NM, LAST_NM, INVITE_ID, PRIMARY_CONTACT_FG, "
        "SORT_ORDER_NB, ROLE_ID) VALUES (3, 'Mr.', 'John', 'Smith', 1, 'Y', 1, 18), "
        "(4, 'Mrs.', 'Mary', 'Smith', 1, 'N', 2, 18), (5, 'Ms.', 'Ann', 'Young', NULL, 'N', 1, 18), "
        "(6, 'Mr.', 'Bob', 'Adams', NULL, 'N', 1, 18)");
}

void AddEvent(int id, const QString& name) {
    TestDatabase::Exec("INSERT INTO EVENT (EVENT_ID, EVENT_TX, EVENT_DT) VALUES (?, ?, ?)",
                       {id, name, QStringLiteral("2027-05-%1").arg(id, 2, 10, QLatin1Char('0'))});
}

QStringList Keys(const QListWidget* list) {
    QStringList keys;
    for (int row = 0; row < list->count(); ++row)
        keys << list->item(row)->data(Qt::UserRole).toString();
    return keys;
}

// Selects the items of these keys and drops what a drag of them carries on the other list.
void Drag(usrEventList* from, usrEventList* to, const QStringList& keys) {
    from->clearSelection();
    for (int row = 0; row < from->count(); ++row)
        from->item(row)->setSelected(keys.contains(from->item(row)->data(Qt::UserRole).toString()));
    std::unique_ptr<QMimeData> mime(from->model()->mimeData(from->selectionModel()->selectedIndexes()));
    QCOMPARE(to->Receive(mime.get()), from != to);
    QCoreApplication::processEvents();
}

QString Scalar(const char* sql) {
    return TestDatabase::Scalar(QString::fromLatin1(sql));
}

} // namespace

class tst_WidgetsPage : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    // One side per event but the wedding day, its caption cut at 20 characters, its picture by its name.
    void eventSides_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("picture");
        QTest::newRow("shower") << "Bridal Shower"
                                << "Bridal Shower"
                                << "shower";
        QTest::newRow("rehearsal, lower case") << "rehearsal dinner"
                                               << "rehearsal dinner"
                                               << "rehearsal";
        QTest::newRow("20 characters") << "Brunch on the Sunday"
                                       << "Brunch on the Sunday"
                                       << "event";
        QTest::newRow("21 characters") << "Brunch on the Sundays"
                                       << "Brunch on the Sunday..."
                                       << "event";
        QTest::newRow("long shower") << "Garden Party and Baby Shower"
                                     << "Garden Party and Bab..."
                                     << "shower";
    }
    void eventSides() {
        QFETCH(QString, name);
        QFETCH(QString, caption);
        QFETCH(QString, picture);
        AddEvent(4, name);
        frmMain_12_Widgets page;
        QCOMPARE(page.SideCount(), 4);
        QRadioButton* option = Child<QRadioButton>(page, "opt_3");
        QCOMPARE(option->text(), caption);
        QTest::mouseClick(option, Qt::LeftButton);
        QCOMPARE(page.CurrentSide(), 3);
        QCOMPARE(Child<QLabel>(page, "picBridalShower")->property("Picture").toString(), picture);
        QVERIFY(Child<QLabel>(page, "lblEvent")
                    ->text()
                    .startsWith("Drag contacts or invitations to the " + name + " Invitations list."));
    }

    // The side is kept on leaving; a side that is gone by the next visit gives way to the wording.
    void chosenSideIsKeptAndFallsBack() {
        AddEvent(4, "Bridal Shower");
        {
            frmMain_12_Widgets page;
            page.opt_Click(3);
            page.Leaving();
        }
        QCOMPARE(frmMain_12_Widgets().CurrentSide(), 3);
        TestDatabase::Exec("DELETE FROM EVENT WHERE EVENT_ID = 4");
        frmMain_12_Widgets page;
        QCOMPARE(page.SideCount(), 3);
        QCOMPARE(page.CurrentSide(), 0);
    }

    // Invitations and contacts move both ways; a candidate leaves the left list while it is on the right.
    void dragsMoveGuestsBothWays() {
        AddGuests();
        AddEvent(4, "Bridal Shower");
        frmMain_12_Widgets page;
        page.opt_Click(3);
        auto* left = Child<usrEventList>(page, "lvw_0");
        auto* right = Child<usrEventList>(page, "lvw_1");
        QCOMPARE(Keys(left), QStringList{"INVITE1"});

        Drag(left, right, {"INVITE1"});
        Drag(right, left, {"INVITE1"});
        Drag(left, right, {"INVITE1"});
        QCOMPARE(Scalar("SELECT COUNT(*) FROM INVITE_WIDGET WHERE EVENT_ID = 4 AND INVITE_ID = 1"), "1");
        QVERIFY(Keys(left).isEmpty());
        QCOMPARE(Child<QLabel>(page, "lblInvited")->text(), QStringLiteral("Bridal Shower Invitations (1)"));

        QTest::mouseClick(Child<QRadioButton>(page, "optList_1"), Qt::LeftButton);
        // Every contact, the couple too, sorted by name.
        QCOMPARE(Keys(left).mid(2), (QStringList{"CONTACT6", "CONTACT3", "CONTACT4", "CONTACT5"}));
        Drag(left, right, {"CONTACT5", "CONTACT6"});
        QCOMPARE(Keys(left).mid(2), (QStringList{"CONTACT3", "CONTACT4"}));
        QCOMPARE(Keys(right).size(), 3);
        Drag(right, left, {"CONTACT5", "INVITE1"});
        QCOMPARE(Scalar("SELECT GROUP_CONCAT(IFNULL(CONTACT_ID, 'i' || INVITE_ID)) FROM INVITE_WIDGET"), "6");
        QCOMPARE(Child<QLabel>(page, "lblInvited")->text(), QStringLiteral("Bridal Shower Invitations (1)"));
    }

    void dropOntoTheSameListChangesNothing() {
        AddGuests();
        AddEvent(4, "Bridal Shower");
        frmMain_12_Widgets page;
        page.opt_Click(3);
        auto* left = Child<usrEventList>(page, "lvw_0");
        Drag(left, left, {"INVITE1"});
        QCOMPARE(Scalar("SELECT COUNT(*) FROM INVITE_WIDGET"), "0");
    }

    // Preview generates, the button follows the difference, "Saved" shows the row and is left alone.
    void wordingIsSavedAndShown() {
        frmMain_12_Widgets page;
        auto* text = Child<QPlainTextEdit>(page, "txtInvitation");
        auto* save = Child<QPushButton>(page, "cmdSaveInvitation");
        auto* place = Child<QPlainTextEdit>(page, "txt_2");
        QVERIFY(text->toPlainText().startsWith("\n"));
        QVERIFY(save->isEnabled());
        place->setPlainText("\"St. Mary's\" & <Hall>\n東京");
        QVERIFY(text->toPlainText().contains("\"St. Mary's\" & <Hall>\n東京\n"));
        QTest::mouseClick(save, Qt::LeftButton);
        QVERIFY(!save->isEnabled());
        QVERIFY(Scalar("SELECT WORDING_TX FROM WORDING WHERE WORDING_ID = 1").contains("<Hall>\r\n東京\r\n"));

        QTest::mouseClick(Child<QRadioButton>(page, "optPreview_1"), Qt::LeftButton);
        QCOMPARE(Child<QLabel>(page, "lblInvitation")->text(), QStringLiteral("Saved Invitation Wording"));
        const QString saved = text->toPlainText();
        Child<QComboBox>(page, "cbo_0")->setCurrentIndex(0);
        QCOMPARE(text->toPlainText(), saved);
    }

    // Leaving with a text that differs from the saved one asks; Yes saves it, No leaves the row as it was.
    void leavingTheWordingAsks_data() {
        QTest::addColumn<int>("answer");
        QTest::addColumn<bool>("saved");
        QTest::newRow("yes") << int(Msg::Yes) << true;
        QTest::newRow("no") << int(Msg::No) << false;
    }
    void leavingTheWordingAsks() {
        QFETCH(int, answer);
        QFETCH(bool, saved);
        frmMain_12_Widgets page;
        db->Messages().NextAnswer = answer;
        page.opt_Click(1);
        QCOMPARE(db->Messages().Prompts, QStringList{"Save Invitation Wording?"});
        QCOMPARE(!Scalar("SELECT WORDING_TX FROM WORDING WHERE WORDING_ID = 1").isEmpty(), saved);
    }

    // A parent's link adds the contact for its role; "remarried" names the new husband, and the
    // wording follows both at once.
    void parentsLinksFeedTheWording() {
        QStringList asked;
        FakeContactEditor::Install(
            [](const QString&, const QString& role) {
                TestDatabase::Exec(
                    "INSERT INTO CONTACT (CONTACT_ID, TITLE_TX, FIRST_NM, LAST_NM, ROLE_ID, SORT_ORDER_NB) "
                    "VALUES (7, 'Mrs.', 'Linda', 'Hall', ?, 1), (8, 'Mr.', 'Tom', 'Hall', 18, 1)",
                    {role});
                return QStringLiteral("7");
            },
            &asked);
        modWidgetLinks::SetRemarriedOpener([](QWidget*, int, QString* id) {
            *id = "8";
            return true;
        });
        frmMain_12_Widgets page;
        Child<QComboBox>(page, "cbo_0")->setCurrentIndex(16);
        auto* mother = Child<usrHyperlink>(page, "link_4");
        auto* remarried = Child<usrHyperlink>(page, "linkRE_4");
        QCOMPARE(mother->Caption(), QStringLiteral("Mother of the Bride"));
        QVERIFY(remarried->isHidden());
        QTest::mouseClick(mother, Qt::LeftButton);
        QCOMPARE(asked, QStringList{"/4"});
        QCOMPARE(mother->Caption(), QStringLiteral("Mrs. Linda Hall"));
        QVERIFY(!remarried->isHidden());
        auto* text = Child<QPlainTextEdit>(page, "txtInvitation");
        QVERIFY(
            text->toPlainText().startsWith("\nMrs. Bride's Mother's Husband's First, Middle, Last Name\n"));
        QTest::mouseClick(remarried, Qt::LeftButton);
        QCOMPARE(remarried->Caption(), QStringLiteral("and Mr. Tom Hall"));
        QVERIFY(text->toPlainText().startsWith("\nMrs. Tom Hall\n"));
        page.Leaving();
        QCOMPARE(modWording::Choices::Load().RemarriedTo(4), QStringLiteral("8"));
        modContactEditor::SetFactory({});
        modWidgetLinks::SetRemarriedOpener({});
    }

    void vowsSaveOneAtATime() {
        frmMain_12_Widgets page;
        page.opt_Click(1);
        db->Messages().Prompts.clear();
        Child<QPlainTextEdit>(page, "txtVows_2")->setPlainText("I promise\nto laugh");
        Child<QPlainTextEdit>(page, "txtVows_3")->setPlainText("I promise too");
        QTest::mouseClick(Child<QPushButton>(page, "cmdSaveVows_2"), Qt::LeftButton);
        QCOMPARE(Scalar("SELECT WORDING_TX FROM WORDING WHERE WORDING_ID = 2"), "I promise\r\nto laugh");
        QVERIFY(Child<QPushButton>(page, "cmdSaveVows_3")->isEnabled());
        db->Messages().NextAnswer = Msg::Yes;
        page.opt_Click(2);
        QCOMPARE(db->Messages().Prompts, QStringList{"Save Wedding Vows?"});
        QCOMPARE(Scalar("SELECT WORDING_TX FROM WORDING WHERE WORDING_ID = 3"), "I promise too");
    }

    // A song whose file is gone is shown, never dropped; removing takes the row and leaves the file.
    void songsShowMissingFilesAndRemoveRowsOnly() {
        const QString present = db->File("Canon in D.mp3");
        QFile file(present);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        const QString list = Scalar("SELECT MIN(SONGLIST_ID) FROM SONGLIST_DICT");
        clsSONG::AddSongs({present, "/gone/Ode to Joy.mp3"}, list);
        frmMain_12_Widgets page;
        page.opt_Click(2);
        auto* grid = Child<QTreeWidget>(page, "grid");
        QCOMPARE(grid->topLevelItemCount(), 1);
        QCOMPARE(grid->topLevelItem(0)->child(1)->text(2),
                 QStringLiteral("File does not exist: Ode to Joy.mp3"));
        grid->topLevelItem(0)->child(0)->setSelected(true);
        db->Messages().NextAnswer = Msg::Yes;
        page.findChild<usrSongsSide*>()->RemoveSelected();
        QCOMPARE(db->Messages().Prompts.last(), QStringLiteral("Remove 'Canon in D.mp3'?"));
        QCOMPARE(Scalar("SELECT SONG_FILE_PATH_TX FROM SONG"), "/gone/Ode to Joy.mp3");
        QVERIFY(QFileInfo::exists(present));
    }

    // A playlist that cannot be written is reported and the dialog stays open; a good path closes it.
    void playlistDialogStaysOpenOnAFailedWrite() {
        frmCreateWPL dialog;
        QSignalSpy created(&dialog, &frmCreateWPL::PlaylistCreated);
        auto* path = Child<QLineEdit>(dialog, "txtPath");
        QVERIFY(path->text().endsWith("/Playlists/All_Songs.wpl"));
        Child<QComboBox>(dialog, "usrSONGLIST")->setCurrentIndex(1);
        QVERIFY(path->text().endsWith("/Playlists/Ceremony.wpl"));
        path->setText("/proc/no-such-place/x.wpl");
        QVERIFY(!dialog.cmdGenerate_Click());
        QVERIFY(db->Messages().Prompts.last().contains("/proc/no-such-place/x.wpl"));
        QCOMPARE(created.count(), 0);
        path->setText(db->File("mine.wpl"));
        QVERIFY(dialog.cmdGenerate_Click());
        QCOMPARE(created.count(), 1);
        QCOMPARE(created.first().first().toString(), db->File("mine.wpl"));
    }
};

QTEST_MAIN(tst_WidgetsPage)
#include "tst_WidgetsPage.moc"
