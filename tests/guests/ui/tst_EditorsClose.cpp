// Every editor of one record, closed with a change made: the question, the answer's effect on the
// database, and whether the editor stays open.
#include "TestDatabase.h"
#include "UiTestTools.h"
#include "guests/GuestTestData.h"
#include "guests/ui/frmAttendee.h"
#include "guests/ui/frmContact.h"
#include "guests/ui/frmInvite.h"
#include "guests/ui/frmRSVP.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>
#include <functional>
#include <memory>

using namespace GuestTestData;
using namespace UiTestTools;

namespace {

// An editor open on its record, how to change one thing in it, and whether that change is stored.
struct OpenEditor {
    std::unique_ptr<frmEditorBase> Form;
    std::function<void()> Change;
    QString Stored;
};

// John and Mary Smith on a sent invitation, Mary coming; Ann Lee not yet invited.
OpenEditor Open(const QString& editor) {
    QStringList ids;
    const QString invite =
        AddInvitation({"Mr.|John||Smith||Jack", "Mrs.|Mary||Smith||"}, {{"INVITE_SENT_FG", "Y"}}, &ids);
    TestDatabase::Exec("UPDATE CONTACT SET ATTENDING_FG = 'Y' WHERE CONTACT_ID = ?", {ids[1]});
    const QString ann = AddContact({{"FIRST_NM", "Ann"}, {"LAST_NM", "Lee"}});
    OpenEditor open;
    if (editor == QLatin1String("contact")) {
        open.Form = std::make_unique<frmContact>(ids[0]);
        auto* nick = open.Form->findChild<QLineEdit*>(QStringLiteral("txt_3"));
        open.Change = [nick] {
            nick->setFocus();
            QTest::keyClick(nick, Qt::Key_End);
            QTest::keyClicks(nick, QStringLiteral("ie"));
        };
        open.Stored = "SELECT NICK_NM = 'Jackie' FROM CONTACT WHERE CONTACT_ID = " + ids[0];
    } else if (editor == QLatin1String("invitation")) {
        auto* form = new frmInvite(QString());
        open.Form.reset(form);
        open.Change = [form, ann] { form->AddPeople({ann}); };
        open.Stored = QStringLiteral("SELECT COUNT(*) = 2 FROM INVITE");
    } else if (editor == QLatin1String("attendee")) {
        open.Form = std::make_unique<frmAttendee>(ids[1]);
        open.Change = [form = open.Form.get()] { Toggle(Child<QCheckBox>(form, "chkATTENDING_FG")); };
        open.Stored = "SELECT ATTENDING_FG = 'N' FROM CONTACT WHERE CONTACT_ID = " + ids[1];
    } else {
        open.Form = std::make_unique<frmRSVP>(invite);
        open.Change = [form = open.Form.get()] { Toggle(Child<QCheckBox>(form, "chkRSVP_RECEIVED_FG")); };
        open.Stored = "SELECT RSVP_RECEIVED_FG = 'Y' FROM INVITE WHERE INVITE_ID = " + invite;
    }
    open.Form->show();
    return open;
}

} // namespace

class tst_EditorsClose : public QObject {
    Q_OBJECT

private slots:
    void closingAsksOnlyWithChanges_data() {
        QTest::addColumn<QString>("editor");
        QTest::addColumn<bool>("change");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("question");
        QTest::addColumn<bool>("stays");
        QTest::addColumn<bool>("saved");
        const int yes = Msg::Yes, no = Msg::No, cancel = Msg::Cancel;
        const QString save = QStringLiteral("Save Changes?"), create = QStringLiteral("Create Invitation?");
        QTest::newRow("contact, unchanged") << "contact" << false << yes << QString() << false << false;
        QTest::newRow("contact, yes saves") << "contact" << true << yes << save << false << true;
        QTest::newRow("contact, no drops") << "contact" << true << no << save << false << false;
        QTest::newRow("contact, cancel stays") << "contact" << true << cancel << save << true << false;
        QTest::newRow("new invitation, unchanged")
            << "invitation" << false << yes << QString() << false << false;
        QTest::newRow("new invitation, yes") << "invitation" << true << yes << create << false << true;
        QTest::newRow("new invitation, no") << "invitation" << true << no << create << false << false;
        QTest::newRow("new invitation, cancel") << "invitation" << true << cancel << create << true << false;
        QTest::newRow("attendee, yes") << "attendee" << true << yes << save << false << true;
        QTest::newRow("attendee, no") << "attendee" << true << no << save << false << false;
        QTest::newRow("attendee, cancel") << "attendee" << true << cancel << save << true << false;
        QTest::newRow("reply, yes") << "reply" << true << yes << save << false << true;
        QTest::newRow("reply, no") << "reply" << true << no << save << false << false;
        QTest::newRow("reply, cancel") << "reply" << true << cancel << save << true << false;
    }
    void closingAsksOnlyWithChanges() {
        QFETCH(QString, editor);
        QFETCH(bool, change);
        QFETCH(int, answer);
        QFETCH(QString, question);
        QFETCH(bool, stays);
        QFETCH(bool, saved);
        TestDatabase db;
        const OpenEditor open = Open(editor);
        QSignalSpy added(open.Form.get(), &frmEditorBase::Added);
        QSignalSpy updated(open.Form.get(), &frmEditorBase::Updated);
        if (change)
            open.Change();
        db.Messages().NextAnswer = answer;
        // Esc, and for the attendee the Cancel button: both close the same way.
        if (editor == QLatin1String("attendee"))
            QTest::mouseClick(open.Form->findChild<QPushButton*>(QStringLiteral("cmdCancel")),
                              Qt::LeftButton);
        else
            QTest::keyClick(open.Form.get(), Qt::Key_Escape);

        QCOMPARE(db.Messages().Prompts, question.isEmpty() ? QStringList() : QStringList{question});
        QCOMPARE(open.Form->isVisible(), stays);
        QCOMPARE(TestDatabase::Scalar(open.Stored), saved ? QStringLiteral("1") : QStringLiteral("0"));
        QCOMPARE(added.count() + updated.count(), saved ? 1 : 0);
    }
};

QTEST_MAIN(tst_EditorsClose)
#include "tst_EditorsClose.moc"
