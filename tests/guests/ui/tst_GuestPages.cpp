// The pages of invitations, replies and attendees driven like a person would, checked against the
// database: marking as sent, deleting, a reply that reaches the attendees, and changes to many.
#include "TestDatabase.h"
#include "UiTestTools.h"
#include "core/clsApp.h"
#include "core/clsDICT.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "guests/ui/frmAttendee.h"
#include "guests/ui/frmMain_02_Invitations.h"
#include "guests/ui/frmMain_03_RSVPs.h"
#include "guests/ui/frmMain_04_Attendees.h"
#include "guests/ui/frmRSVP.h"
#include "guests/ui/modGuestPages.h"
#include "shell/controls/usrDropdown.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modPages.h"
#include "startup/modDemoWedding.h"

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QtTest>

using UiTestTools::SelectRecords;

namespace {

QString Text(const QWidget* page, const QString& label) {
    return page->findChild<QLabel*>(label)->text();
}

usrHyperlink* Link(const QWidget* page, const QString& name) {
    return page->findChild<usrHyperlink*>(name);
}

QString Cell(usrGrid* grid, const QString& id, const QString& column) {
    return grid->Model()->RowAt(grid->Model()->FindRecord(id.toLongLong()))->Cell(grid->ColumnIndex(column));
}

QStringList InviteIds(int filter, int count) {
    QStringList ids;
    for (const clsINVITE& invite : clsINVITE::OpenRecords(filter, true))
        if (ids.size() < count)
            ids.append(invite.INVITE_ID);
    return ids;
}

QString Flag(const QString& column, const QString& inviteId) {
    return TestDatabase::Scalar(QStringLiteral("SELECT %1 FROM INVITE WHERE INVITE_ID = ?").arg(column),
                                {inviteId});
}

void SetSent(const QStringList& ids, const QString& sent, const QString& received) {
    for (const QString& id : ids)
        TestDatabase::Exec("UPDATE INVITE SET INVITE_SENT_FG = ?, RSVP_RECEIVED_FG = ? WHERE INVITE_ID = ?",
                           {sent, received, id});
}

void ClearAddress(const QString& inviteId) {
    TestDatabase::Exec(
        "UPDATE CONTACT SET ADDRESS_TX = NULL WHERE INVITE_ID = ? AND PRIMARY_CONTACT_FG = 'Y'", {inviteId});
}

} // namespace

class tst_GuestPages : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        modPages::Clear();
        RegisterGuestPages();
    }
    void init() {
        mDatabase = std::make_unique<TestDatabase>();
        QString message;
        QVERIFY2(FillDemoWedding(60, 5, &message), qPrintable(message));
    }
    void cleanup() { mDatabase.reset(); }
    // Of three envelopes one has no address: it is never changed, and marking as sent says why.
    void markSentSkipsNoAddress_data() {
        QTest::addColumn<bool>("sent");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::addColumn<int>("messages");
        QTest::newRow("mark as sent") << true << "N"
                                      << "Y" << 1;
        QTest::newRow("mark as not sent") << false << "Y"
                                          << "N" << 0;
    }
    void markSentSkipsNoAddress() {
        QFETCH(bool, sent);
        QFETCH(QString, before);
        QFETCH(QString, after);
        QFETCH(int, messages);
        const QStringList ids = InviteIds(0, 3);
        SetSent(ids, before, before);
        ClearAddress(ids[1]);
        frmMain_02_Invitations page;
        page.LoadNow();
        SelectRecords(page.Grid(), ids);
        const int shownBefore = static_cast<int>(mDatabase->Messages().Prompts.size());

        QCOMPARE(page.MarkSelectedSent(sent), 2);

        const QStringList shown = mDatabase->Messages().Prompts.mid(shownBefore);
        QCOMPARE(shown.size(), messages);
        if (messages == 1)
            QCOMPARE(shown.first(), QStringLiteral("Invitations with no address cannot be marked as sent."));
        for (const QString& id : {ids[0], ids[2]}) {
            QCOMPARE(Flag("INVITE_SENT_FG", id), after);
            QCOMPARE(Cell(page.Grid(), id, "INVITE_SENT"), after == "Y" ? QStringLiteral("Yes") : QString());
        }
        QCOMPARE(Flag("INVITE_SENT_FG", ids[1]), before);
        // Taking an invitation back clears its reply; sending it leaves the reply as it was.
        QCOMPARE(Flag("RSVP_RECEIVED_FG", ids[0]), sent ? before : QStringLiteral("N"));
        QCOMPARE(Text(&page, "lblStat_1"), QString::number(clsINVITE::GetTotal(1)));
    }

    void deleteRefusesSentOnes() {
        const QStringList ids = InviteIds(0, 3);
        SetSent({ids[0], ids[2]}, "Y", "N");
        SetSent({ids[1]}, "N", "N");
        const QString person =
            TestDatabase::Scalar("SELECT CONTACT_ID FROM CONTACT WHERE INVITE_ID = ?", {ids[1]});
        frmMain_02_Invitations page;
        page.LoadNow();
        SelectRecords(page.Grid(), ids);
        QCOMPARE(Link(&page, "linkAction_2")->Caption(), QStringLiteral("Delete invitations (3)"));
        mDatabase->Messages().NextAnswer = Msg::Yes;

        QCOMPARE(page.DeleteSelected(), 1);

        const QStringList& prompts = mDatabase->Messages().Prompts;
        QCOMPARE(prompts.at(prompts.size() - 2), QStringLiteral("Delete 3 Invitations?"));
        QCOMPARE(prompts.last(), QStringLiteral("Unable to delete 2 'Sent' Invitations."));
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM INVITE WHERE INVITE_ID IN (?, ?, ?)",
                                      {ids[0], ids[1], ids[2]}),
                 QStringLiteral("2"));
        QVERIFY(!page.Grid()->Model()->FindRecord(ids[1].toLongLong()).isValid());
        // Its people stay, without an invitation.
        QCOMPARE(TestDatabase::Scalar("SELECT IFNULL(INVITE_ID, 'none') FROM CONTACT WHERE CONTACT_ID = ?",
                                      {person}),
                 QStringLiteral("none"));
        QCOMPARE(Text(&page, "lblStat_0"), QString::number(clsINVITE::GetTotal(0)));
    }

    void lockOfTheRSVPIDs() {
        frmMain_02_Invitations page;
        page.LoadNow();
        QTest::mouseClick(Link(&page, "linkAction_5"), Qt::LeftButton);
        QVERIFY(gApp().LockRSVPIDs());
        QCOMPARE(Link(&page, "linkAction_4")->Caption(), QStringLiteral("Sort RSVP IDs (Locked)"));
        QVERIFY(!Link(&page, "linkAction_4")->isEnabled());
        QCOMPARE(Link(&page, "linkAction_5")->Caption(), QStringLiteral("Unlock RSVP IDs"));

        mDatabase->Messages().NextAnswer = Msg::No;
        page.ToggleLock();
        QCOMPARE(mDatabase->Messages().Prompts.last(),
                 QStringLiteral("Are you sure you want to unlock your RSVP IDs?"));
        QVERIFY(gApp().LockRSVPIDs());
        mDatabase->Messages().NextAnswer = Msg::Yes;
        page.ToggleLock();
        QVERIFY(!gApp().LockRSVPIDs());
        QCOMPARE(Link(&page, "linkAction_4")->Caption(), QStringLiteral("Sort RSVP IDs"));
        QVERIFY(Link(&page, "linkAction_4")->isEnabled());
    }

    // A reply recorded from the RSVPs page: its row, the counts, and the attendees page follow.
    void replyReachesTheAttendees_data() {
        QTest::addColumn<bool>("firstComes");
        QTest::newRow("the first person comes") << true;
        QTest::newRow("nobody comes") << false;
    }
    void replyReachesTheAttendees() {
        QFETCH(bool, firstComes);
        QString inviteId;
        for (const clsINVITE& invite : clsINVITE::OpenRecords(0, true))
            if (inviteId.isEmpty() && invite.NUMBER_INVITED_NB() >= 2)
                inviteId = invite.INVITE_ID;
        SetSent({inviteId}, "Y", "N");
        TestDatabase::Exec("UPDATE CONTACT SET ATTENDING_FG = 'N', MEAL_ID = NULL WHERE INVITE_ID = ?",
                           {inviteId});
        const long attendingBefore = gApp().TotalContacts(14);
        const long receivedBefore = clsINVITE::GetTotal(3);

        frmMain_03_RSVPs page;
        page.LoadNow();
        QCOMPARE(Cell(page.Grid(), inviteId, "NUMBER_ATTENDING"), QStringLiteral("No reply"));
        frmRSVP reply(inviteId);
        connect(&reply, &frmRSVP::RSVPUpdated, &page, &frmMain_03_RSVPs::mfrmRSVP_RSVPUpdated);
        reply.findChild<QCheckBox*>("chkRSVP_RECEIVED_FG")->setChecked(true);
        const QString mealId = clsDICT().OpenRecords(clsDICT::Meal).first().ID;
        if (firstComes) {
            reply.findChild<QCheckBox*>("chkATTENDING_FG_0")->setChecked(true);
            reply.findChild<usrDropdown*>("usrMEAL_0")->setCode(mealId);
        }
        QVERIFY(reply.Save());

        const int invited =
            TestDatabase::Scalar("SELECT COUNT(*) FROM CONTACT WHERE INVITE_ID = ?", {inviteId}).toInt();
        const int coming = firstComes ? 1 : 0;
        QCOMPARE(Cell(page.Grid(), inviteId, "NUMBER_ATTENDING"),
                 QStringLiteral("%1 / %2").arg(coming).arg(invited));
        QCOMPARE(Text(&page, "lblStat_3"), QString::number(receivedBefore + 1));
        // Nobody coming: the row is struck through in grey, in all its cells, now and at the next visit.
        frmMain_03_RSVPs again;
        again.LoadNow();
        for (const frmMain_03_RSVPs* shown : {&page, &again}) {
            const QModelIndex row = shown->Grid()->Model()->FindRecord(inviteId.toLongLong());
            for (const char* column : {"RSVP_ID", "INVITATION", "NUMBER_ATTENDING"}) {
                const QModelIndex cell = row.siblingAtColumn(shown->Grid()->ColumnIndex(column));
                QCOMPARE(cell.data(Qt::FontRole).value<QFont>().strikeOut(), !firstComes);
                QCOMPARE(cell.data(Qt::ForegroundRole).isValid(), !firstComes);
            }
        }

        frmMain_04_Attendees attendees;
        attendees.LoadNow();
        QCOMPARE(Text(&attendees, "lblStat_14"), QString::number(attendingBefore + coming));
        const QString first = reply.Invite().GUESTS.first().CONTACT_ID;
        QCOMPARE(attendees.Grid()->Model()->FindRecord(first.toLongLong()).isValid(), firstComes);
        if (firstComes)
            QCOMPARE(TestDatabase::Scalar("SELECT MEAL_ID FROM CONTACT WHERE CONTACT_ID = ?", {first}),
                     mealId);
    }

    void attendeeSentAwayLeavesTheList() {
        frmMain_04_Attendees page;
        page.LoadNow();
        const QString id = clsCONTACT::OpenRecords(14, {}, {}, true).first().CONTACT_ID;
        const QString before = Text(&page, "lblStat_14");
        frmAttendee editor(id);
        connect(&editor, &frmAttendee::AttendeeUpdated, &page,
                &frmMain_04_Attendees::mfrmAttendee_AttendeeUpdated);
        editor.findChild<QCheckBox*>("chkATTENDING_FG")->setChecked(false);
        QVERIFY(editor.Save());
        QVERIFY(!page.Grid()->Model()->FindRecord(id.toLongLong()).isValid());
        QCOMPARE(Text(&page, "lblStat_14"), QString::number(before.toInt() - 1));
        QCOMPARE(
            TestDatabase::Scalar("SELECT IFNULL(MEAL_ID, '') || IFNULL(DINING_TABLE_ID, '') FROM CONTACT "
                                 "WHERE CONTACT_ID = ?",
                                 {id}),
            QString());
    }

    void bulkMealChange() {
        TestDatabase::Exec("UPDATE CONTACT SET MEAL_ID = NULL WHERE CONTACT_ID IN "
                           "(SELECT CONTACT_ID FROM CONTACT WHERE ATTENDING_FG = 'Y' LIMIT 2)");
        frmMain_04_Attendees page;
        page.LoadNow();
        QStringList ids;
        for (const clsCONTACT& c : clsCONTACT::OpenRecords(14, {}, {}, false))
            if (ids.size() < 4)
                ids.append(c.CONTACT_ID);
        SelectRecords(page.Grid(), ids);
        const QList<clsDICT> meals = clsDICT().OpenRecords(clsDICT::Meal);
        const int last = static_cast<int>(meals.size()) - 1;
        QAction* item = page.ContextMenu()->findChild<QAction*>(QStringLiteral("mnuMeal_%1").arg(last));
        QVERIFY(item);
        QCOMPARE(item->text(), meals[last].TX);
        item->trigger();

        QCOMPARE(TestDatabase::Scalar(
                     QStringLiteral("SELECT COUNT(*) FROM CONTACT WHERE MEAL_ID = ? AND CONTACT_ID IN (%1)")
                         .arg(ids.join(',')),
                     {meals[last].ID}),
                 QStringLiteral("4"));
        for (const QString& id : ids)
            QCOMPARE(Cell(page.Grid(), id, "MEAL"), meals[last].TX);
        const int entry = frmMain_04_Attendees::FirstMeal + last;
        QCOMPARE(Text(&page, QStringLiteral("lblStat_%1").arg(entry)),
                 QString::number(gApp().TotalContacts(1000, page.MealCondition(entry))));
        QCOMPARE(Text(&page, "lblStat_999"), QString::number(gApp().TotalContacts(999)));
    }

private:
    std::unique_ptr<TestDatabase> mDatabase;
};

QTEST_MAIN(tst_GuestPages)
#include "tst_GuestPages.moc"
