#include "TestDatabase.h"
#include "UiTestTools.h"
#include "guests/GuestTestData.h"
#include "guests/ui/frmContact.h"
#include "guests/ui/frmInvite.h"
#include "guests/ui/usrGuestList.h"
#include "shell/controls/usrHyperlink.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>
#include <memory>

using namespace GuestTestData;
using namespace UiTestTools;

namespace {

const QString kAddressNeeded =
    QStringLiteral("Primary Address Needed before Invitation can be marked as 'Sent'.");

QString Plain(const QString& caption) {
    return QString(caption).remove(QLatin1Char('&'));
}

QTreeWidgetItem* RowOf(usrGuestList* list, const QString& key) {
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        if (usrGuestList::KeyOf(list->topLevelItem(i)) == key)
            return list->topLevelItem(i);
    }
    return nullptr;
}

// Drags the rows of these keys from one list and drops them on the empty part of the other, the way the
// mouse does it: the drag data of the source, then enter, move and drop on the target's viewport.
void Drag(usrGuestList* from, usrGuestList* to, const QStringList& keys) {
    std::unique_ptr<QMimeData> data(from->MimeDataFor(keys));
    const QPoint at(to->viewport()->width() / 2, to->viewport()->height() - 4);
    QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(to->viewport(), &enter);
    QDragMoveEvent move(at, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(to->viewport(), &move);
    QDropEvent drop(at, Qt::CopyAction | Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(to->viewport(), &drop);
}

void ClickRow(usrGuestList* list, const QString& key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTreeWidgetItem* item = RowOf(list, key);
    QVERIFY2(item, qPrintable(key));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, list->visualItemRect(item).center());
}

void DoubleClickRow(usrGuestList* list, const QString& key) {
    QTreeWidgetItem* item = RowOf(list, key);
    QVERIFY2(item, qPrintable(key));
    const QPoint at = list->visualItemRect(item).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, at);
}

QStringList Names(usrGuestList* list) {
    QStringList names;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        names << list->topLevelItem(i)->text(1);
    return names;
}

} // namespace

class tst_frmInvite : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;
    QString john, mary, ann;

    static QString Scalar(const QString& sql, const QVariantList& values = {}) {
        return TestDatabase::Scalar(sql, values);
    }

    std::unique_ptr<frmInvite> Open(const QString& inviteId = QString()) {
        auto form = std::make_unique<frmInvite>(inviteId);
        form->show();
        QApplication::setActiveWindow(form.get());
        if (!QTest::qWaitForWindowActive(form.get()))
            qWarning("the editor did not become active");
        return form;
    }

private slots:
    void init() {
        db = std::make_unique<TestDatabase>();
        SetEtiquette(false, false);
        john = AddContact({{"TITLE_TX", "Mr."},
                           {"FIRST_NM", "John"},
                           {"LAST_NM", "Smith"},
                           {"ADDRESS_TX", "12 Elm Street\r\nSpringfield"}});
        mary = AddContact(
            {{"TITLE_TX", "Mrs."}, {"FIRST_NM", "Mary"}, {"LAST_NM", "Smith"}, {"GENDER_FG", "F"}});
        ann = AddContact({{"TITLE_TX", "Ms."}, {"FIRST_NM", "Ann"}, {"LAST_NM", "Lee"}, {"GENDER_FG", "F"}});
    }
    void cleanup() { db.reset(); }

    // People are dragged in, moved, taken off by a double click, a guest is added; the wording follows
    // each step in the etiquette chosen, and the save writes exactly what the boxes showed.
    void buildInvitationByHand_data() {
        QTest::addColumn<bool>("formal");
        QTest::addColumn<QString>("link");
        QTest::addColumn<QStringList>("inner"); // after the couple, the move, the guest
        QTest::newRow("personal") << false << "(Personal)"
                                  << QStringList{"John and Mary", "Mary and John", "John and Guest"};
        QTest::newRow("formal") << true << "(Formal)"
                                << QStringList{"Mr. and Mrs. Smith", "Mrs. Smith and Mr. Smith",
                                               "Mr. Smith and Guest"};
    }
    void buildInvitationByHand() {
        QFETCH(bool, formal);
        QFETCH(QString, link);
        QFETCH(QStringList, inner);
        SetEtiquette(formal, false);
        auto form = Open();
        QCOMPARE(Child<usrHyperlink>(form.get(), "linkEtiquette")->Caption(), link);
        auto* upper = Child<usrGuestList>(form.get(), "lvw_0");
        auto* lower = Child<usrGuestList>(form.get(), "lvw_1");
        auto* outer = Child<QLineEdit>(form.get(), "txt_0");
        auto* innerBox = Child<QLineEdit>(form.get(), "txt_2");
        auto* address = Child<QPlainTextEdit>(form.get(), "txt_1");
        auto* andGuest = Child<QCheckBox>(form.get(), "chkAND_GUEST");
        QCOMPARE(form->windowTitle(), QStringLiteral("Add New Invitation"));
        QCOMPARE(Child<QPushButton>(form.get(), "cmdSave")->text(), QStringLiteral("Create Invitation"));
        QCOMPARE(Plain(Child<QLabel>(form.get(), "lblList_0")->text()),
                 QStringLiteral("Contacts to be Invited (3)"));
        QCOMPARE(address->toPlainText(), QStringLiteral("(Double-click to enter Primary Address)"));

        Drag(upper, lower, {john, mary});
        QCOMPARE(Names(lower), (QStringList{"John Smith (Primary)", "Mary Smith"}));
        QCOMPARE(Plain(Child<QLabel>(form.get(), "lblList_1")->text()),
                 QStringLiteral("Contacts on Invitation (2)"));
        QCOMPARE(upper->Keys(), QStringList{ann});
        QCOMPARE(outer->text(), QStringLiteral("Mr. and Mrs. John Smith"));
        QCOMPARE(innerBox->text(), inner[0]);
        QCOMPARE(address->toPlainText(), QStringLiteral("12 Elm Street\nSpringfield"));
        QVERIFY(!andGuest->isEnabled());

        // The wife moved first by the keyboard: both are written in full, and she becomes primary.
        ClickRow(lower, mary);
        QTest::keyClick(lower, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(Names(lower), (QStringList{"Mary Smith (Primary)", "John Smith"}));
        QCOMPARE(outer->text(), QStringLiteral("Mrs. Mary Smith and Mr. John Smith"));
        QCOMPARE(innerBox->text(), inner[1]);
        QCOMPARE(address->toPlainText(), QStringLiteral("(Double-click to enter Primary Address)"));

        // Off again by a double click; John alone may bring a guest.
        DoubleClickRow(lower, mary);
        QCOMPARE(lower->Keys(), QStringList{john});
        QCOMPARE(upper->Keys(), (QStringList{ann, mary}));
        QVERIFY(andGuest->isEnabled());
        QCOMPARE(Plain(andGuest->text()), QStringLiteral("John may bring a 'Guest'"));
        Toggle(andGuest);
        QCOMPARE(Names(lower), (QStringList{"John Smith (Primary)", "John's Guest"}));
        QCOMPARE(outer->text(), QStringLiteral("Mr. John Smith"));
        QCOMPARE(innerBox->text(), inner[2]);

        QSignalSpy added(form.get(), &frmInvite::Added);
        QTest::mouseClick(Child<QPushButton>(form.get(), "cmdSave"), Qt::LeftButton);
        QCOMPARE(added.count(), 1);
        const QString inviteId = added.at(0).at(0).toString();
        QCOMPARE(form->result(), int(QDialog::Accepted));
        QCOMPARE(
            Scalar("SELECT DISPLAY_AS_TX || '|' || OUTER_ENVELOPE_TX || '|' || INNER_ENVELOPE_TX || '|' || "
                   "INVITE_SENT_FG || RSVP_RECEIVED_FG || AUTO_UPDATE_FG || '|' || INVITE_RSVP_ID "
                   "FROM INVITE WHERE INVITE_ID = ?",
                   {inviteId}),
            "Smith, John and Guest|Mr. John Smith|" + inner[2] + "|NNY|1");
        QCOMPARE(
            Scalar(
                "SELECT group_concat(x, ';') FROM (SELECT FIRST_NM || ' ' || IFNULL(MIDDLE_NM, '') || '/' || "
                "SORT_ORDER_NB || PRIMARY_CONTACT_FG || '/' || IFNULL(GUEST_OF_ID, '') AS x FROM CONTACT "
                "WHERE INVITE_ID = ? ORDER BY SORT_ORDER_NB)",
                {inviteId}),
            QStringLiteral("John /1Y/;John's Guest/2N/") + john);
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE INVITE_ID IS NOT NULL AND CONTACT_ID IN (?, ?)",
                        {mary, ann}),
                 QStringLiteral("0"));
    }

    // Editing takes a brought guest off for good, and releases the people taken off with their replies.
    void editRemovesGuestAndReleasesPeople() {
        QStringList ids;
        const QString inviteId = AddInvitation({"Mr.|Tom||Baker|||", "|Tom's|Guest||||0"},
                                               {{"INVITE_SENT_FG", "Y"}, {"RSVP_RECEIVED_FG", "Y"}}, &ids);
        TestDatabase::Exec(
            "UPDATE CONTACT SET ADDRESS_TX = '1 Oak Road', ATTENDING_FG = 'Y' WHERE INVITE_ID = ?",
            {inviteId});
        auto form = Open(inviteId);
        QCOMPARE(form->windowTitle(), QStringLiteral("Edit Invitation"));
        auto* andGuest = Child<QCheckBox>(form.get(), "chkAND_GUEST");
        QVERIFY(andGuest->isChecked());
        QVERIFY(Child<QCheckBox>(form.get(), "chkINVITE_SENT_FG")->isChecked());
        Toggle(andGuest);
        QCOMPARE(Child<usrGuestList>(form.get(), "lvw_1")->Keys(), QStringList{ids[0]});
        QCOMPARE(Child<QLineEdit>(form.get(), "txt_2")->text(), QStringLiteral("Tom"));

        Drag(Child<usrGuestList>(form.get(), "lvw_0"), Child<usrGuestList>(form.get(), "lvw_1"), {ann});
        QSignalSpy updated(form.get(), &frmInvite::Updated);
        QVERIFY(form->Save());
        QCOMPARE(updated.count(), 1);
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID = ?", {ids[1]}), QStringLiteral("0"));
        QCOMPARE(
            Scalar(
                "SELECT group_concat(CONTACT_ID || SORT_ORDER_NB || PRIMARY_CONTACT_FG || ATTENDING_FG, ',') "
                "FROM (SELECT * FROM CONTACT WHERE INVITE_ID = ? ORDER BY SORT_ORDER_NB)",
                {inviteId}),
            ids[0] + "1YN," + ann + "2NN");
        QCOMPARE(
            Scalar("SELECT RSVP_RECEIVED_FG || INVITE_SENT_FG FROM INVITE WHERE INVITE_ID = ?", {inviteId}),
            QStringLiteral("YY"));
    }

    // A guest goes with the person who brings them, and never back to the people to invite; a person
    // dropped on a row lands before it.
    void guestGoesWithHost() {
        auto form = Open();
        auto* upper = Child<usrGuestList>(form.get(), "lvw_0");
        auto* lower = Child<usrGuestList>(form.get(), "lvw_1");
        form->AddPeople({john});
        Toggle(Child<QCheckBox>(form.get(), "chkAND_GUEST"));
        QCOMPARE(lower->topLevelItemCount(), 2);
        ClickRow(lower, john);
        QTest::keyClick(lower, Qt::Key_Delete);
        QCOMPARE(lower->topLevelItemCount(), 0);
        QCOMPARE(upper->Keys(), (QStringList{ann, john, mary}));
        QVERIFY(!Child<QPushButton>(form.get(), "cmdSave")->isEnabled());

        form->AddPeople({john, mary});
        ClickRow(upper, ann);
        QTest::keyClick(upper, Qt::Key_Return);
        ClickRow(lower, ann);
        QTest::keyClick(lower, Qt::Key_Up, Qt::ControlModifier);
        QTest::keyClick(lower, Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(lower->Keys(), (QStringList{ann, john, mary}));
        QCOMPARE(Child<QLineEdit>(form.get(), "txt_0")->text(),
                 QStringLiteral("Ms. Ann Lee and Mr. John Smith and Mrs. Mary Smith"));
    }

    // A failure at any step leaves the database exactly as it was, and the editor open with its work.
    void saveIsAllOrNothing_data() {
        QTest::addColumn<QString>("event");
        QTest::addColumn<QString>("table");
        QTest::newRow("the guest cannot be written") << "INSERT"
                                                     << "CONTACT";
    }
    void saveIsAllOrNothing() {
        QFETCH(QString, event);
        QFETCH(QString, table);
        auto form = Open();
        form->AddPeople({john});
        Toggle(Child<QCheckBox>(form.get(), "chkAND_GUEST"));
        const QStringList contacts = Dump("CONTACT"), invites = Dump("INVITE");
        FailOn(event, table);
        QSignalSpy added(form.get(), &frmInvite::Added);
        QTest::mouseClick(Child<QPushButton>(form.get(), "cmdSave"), Qt::LeftButton);
        QCOMPARE(added.count(), 0);
        QVERIFY(form->isVisible());
        QVERIFY(!db->Messages().Prompts.isEmpty());
        QCOMPARE(Dump("CONTACT"), contacts);
        QCOMPARE(Dump("INVITE"), invites);
        QCOMPARE(form->People().size(), 2);
        QVERIFY(form->IsAddMode());
    }

    // "Sent" needs the primary contact's address; the RSVP ID can be set only on a sent invitation.
    void sentNeedsAnAddress_data() {
        QTest::addColumn<bool>("withAddress");
        QTest::newRow("no address") << false;
        QTest::newRow("address") << true;
    }
    void sentNeedsAnAddress() {
        QFETCH(bool, withAddress);
        auto form = Open();
        form->AddPeople({withAddress ? john : mary});
        auto* sent = Child<QCheckBox>(form.get(), "chkINVITE_SENT_FG");
        QVERIFY(!Child<QWidget>(form.get(), "fraRSVP")->isEnabled());
        Toggle(sent);
        QCOMPARE(sent->isChecked(), withAddress);
        QCOMPARE(Child<QWidget>(form.get(), "fraRSVP")->isEnabled(), withAddress);
        QCOMPARE(db->Messages().Prompts, withAddress ? QStringList() : QStringList{kAddressNeeded});
    }

    // The envelope's address is the primary contact's: a double click opens the contact, and what is
    // saved there shows at once and lets the invitation be marked as sent.
    void addressIsEnteredAtTheContact() {
        frmContact::RegisterEditor();
        auto form = Open();
        form->AddPeople({mary});
        auto* address = Child<QPlainTextEdit>(form.get(), "txt_1");
        QString opened;
        QTimer::singleShot(0, this, [&opened] {
            QWidget* editor = QApplication::activeModalWidget();
            QVERIFY(editor);
            opened = editor->objectName();
            Child<QPlainTextEdit>(editor, "txt_2")->setPlainText("3 Pine Lane\nSpringfield");
            QTest::mouseClick(Child<QPushButton>(editor, "cmd_1"), Qt::LeftButton);
        });
        QTest::mouseDClick(address->viewport(), Qt::LeftButton);
        QCOMPARE(opened, QStringLiteral("frmContact"));
        QCOMPARE(address->toPlainText(), QStringLiteral("3 Pine Lane\nSpringfield"));
        auto* sent = Child<QCheckBox>(form.get(), "chkINVITE_SENT_FG");
        Toggle(sent);
        QVERIFY(sent->isChecked());
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    // Typed wording stays while the people change and is saved; ticking the box again rewrites it.
    void typedWordingWhileAutoSuggestIsOff() {
        auto form = Open();
        form->AddPeople({john});
        auto* autoUpdate = Child<QCheckBox>(form.get(), "chkAUTO_UPDATE_FG");
        auto* outer = Child<QLineEdit>(form.get(), "txt_0");
        QVERIFY(outer->isReadOnly());
        Toggle(autoUpdate);
        QVERIFY(!outer->isReadOnly());
        outer->selectAll();
        QTest::keyClicks(outer, "The Smith Family");
        form->AddPeople({mary});
        QCOMPARE(outer->text(), QStringLiteral("The Smith Family"));
        QVERIFY(form->Save());
        QCOMPARE(Scalar("SELECT OUTER_ENVELOPE_TX || AUTO_UPDATE_FG || DISPLAY_AS_TX FROM INVITE"),
                 QStringLiteral("The Smith FamilyNSmith, John and Mary"));
        Toggle(autoUpdate);
        QCOMPARE(outer->text(), QStringLiteral("Mr. and Mrs. John Smith"));
    }
};

QTEST_MAIN(tst_frmInvite)
#include "tst_frmInvite.moc"
