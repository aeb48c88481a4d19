#include "TestDatabase.h"
#include "UiTestTools.h"
#include "core/clsApp.h"
#include "guests/GuestTestData.h"
#include "guests/ui/frmAttendee.h"
#include "guests/ui/frmInviteRSVPIDs.h"
#include "guests/ui/frmRSVP.h"
#include "shell/controls/usrDropdown.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>
#include <memory>

using namespace GuestTestData;
using namespace UiTestTools;

namespace {

// Chooses a meal the way a user does: the list gets the focus and the first letters are typed.
void ChooseMeal(usrDropdown* meal, const QString& text) {
    QComboBox* list = meal->ComboBox();
    list->setFocus();
    QTest::keyClicks(list, text);
}

QString MealId(const QString& text) {
    return TestDatabase::Scalar("SELECT MEAL_ID FROM MEAL_DICT WHERE MEAL_TX = ?", {text});
}

} // namespace

class tst_frmRSVP : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static QString Scalar(const QString& sql, const QVariantList& values = {}) {
        return TestDatabase::Scalar(sql, values);
    }

    // A sent invitation of two people, the second already seated with a meal from an earlier reply.
    QString SentCouple(QStringList* ids) {
        const QString inviteId = AddInvitation({"Mr.|John||Smith|||", "Mrs.|Mary||Smith|||"},
                                               {{"INVITE_SENT_FG", "Y"}, {"INVITE_RSVP_ID", "7"}}, ids);
        AddDiningTable(1, 1, "Family");
        TestDatabase::Exec(
            "UPDATE CONTACT SET ATTENDING_FG = 'Y', MEAL_ID = ?, DINING_TABLE_ID = 1 WHERE CONTACT_ID = ?",
            {MealId("Beef"), ids->at(1)});
        return inviteId;
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    // ---- RSVP IDs ---------------------------------------------------------------------------------

    // Unsent invitations are numbered by name from 1, passing over the numbers of sent ones.
    void sortSkipsSentNumbers_data() {
        QTest::addColumn<QStringList>("sentIds");
        QTest::addColumn<QString>("expected"); // name=id of the unsent, in name order
        QTest::newRow("sent 2 and 5") << QStringList{"2", "5"} << "Adams=1,Baker=3,Clark=4,Davis=6";
    }
    void sortSkipsSentNumbers() {
        QFETCH(QStringList, sentIds);
        QFETCH(QString, expected);
        for (const QString& id : sentIds)
            AddInvitation({"Mr.|Sent" + id + "||Zed|||"},
                          QVariantMap{{"INVITE_SENT_FG", "Y"},
                                      {"INVITE_RSVP_ID", id},
                                      {"DISPLAY_AS_TX", QString("A sent " + id)}});
        // Made in another order than their names, with numbers the sort must replace.
        for (const QString name : {"Davis", "Baker", "Adams", "Clark"})
            AddInvitation({"Mr.|X||" + name + "|||"},
                          QVariantMap{{"INVITE_RSVP_ID", "90"}, {"DISPLAY_AS_TX", name}});

        frmInviteRSVPIDs form;
        ShowActive(&form);
        QSignalSpy changed(&form, &frmInviteRSVPIDs::RSVPIDsChanged);
        QTest::mouseClick(Child<QPushButton>(&form, "cmdSort"), Qt::LeftButton);
        QCOMPARE(changed.count(), 1);
        QVERIFY(!form.isVisible());
        QCOMPARE(Scalar("SELECT group_concat(DISPLAY_AS_TX || '=' || INVITE_RSVP_ID, ',') FROM "
                        "(SELECT * FROM INVITE WHERE INVITE_SENT_FG = 'N' ORDER BY DISPLAY_AS_TX)"),
                 expected);
        QCOMPARE(
            Scalar(
                "SELECT group_concat(INVITE_RSVP_ID, ',') FROM (SELECT * FROM INVITE WHERE INVITE_SENT_FG = "
                "'Y' ORDER BY INVITE_RSVP_ID)"),
            sentIds.isEmpty() ? QString() : sentIds.join(','));
    }

    // While the IDs are locked the sort cannot run.
    void lockedIdsCannotBeSorted() {
        AddInvitation({"Mr.|X||Adams|||"}, {{"INVITE_RSVP_ID", "9"}, {"DISPLAY_AS_TX", "Adams"}});
        gApp().SetLockRSVPIDs(true);
        frmInviteRSVPIDs form;
        ShowActive(&form);
        QVERIFY(!Child<QPushButton>(&form, "cmdSort")->isEnabled());
        QVERIFY(Child<QLabel>(&form, "lblLocked")->isVisible());
        QVERIFY(!form.SortRSVPIDs());
        QCOMPARE(Scalar("SELECT INVITE_RSVP_ID FROM INVITE"), QStringLiteral("9"));
    }

    // ---- The reply --------------------------------------------------------------------------------

    void recordReply() {
        QStringList ids;
        const QString inviteId = SentCouple(&ids);
        frmRSVP form(inviteId);
        ShowActive(&form);
        QCOMPARE(form.windowTitle(), QStringLiteral("Open RSVP"));
        QCOMPARE(Child<QLabel>(&form, "lblRSVPID")->text(), QStringLiteral("# 7"));
        auto* received = Child<QCheckBox>(&form, "chkRSVP_RECEIVED_FG");
        auto* johnComes = Child<QCheckBox>(&form, "chkATTENDING_FG_0");
        auto* maryComes = Child<QCheckBox>(&form, "chkATTENDING_FG_1");
        auto* johnMeal = Child<usrDropdown>(&form, "usrMEAL_0");
        auto* summary = Child<QLabel>(&form, "lblSummary");
        QCOMPARE(summary->text(), QStringLiteral("1 of 2 attending"));
        QVERIFY(!johnComes->isEnabled()); // nothing can be ticked before the reply is in
        QVERIFY(Child<QLabel>(&form, "imgRSVPClosed")->isVisible());

        Toggle(received);
        QVERIFY(Child<QLabel>(&form, "imgRSVPOpen")->isVisible());
        QVERIFY(johnComes->isEnabled());
        QVERIFY(!johnMeal->isEnabled());
        Toggle(johnComes);
        QVERIFY(johnMeal->isEnabled());
        ChooseMeal(johnMeal, "Fish");
        Toggle(maryComes);
        QVERIFY(!Child<usrDropdown>(&form, "usrMEAL_1")->isEnabled());
        QCOMPARE(summary->text(), QStringLiteral("1 of 2 attending"));
        QVERIFY(form.IsDirty());

        QSignalSpy updated(&form, &frmRSVP::RSVPUpdated);
        QTest::mouseClick(Child<QPushButton>(&form, "cmdSave"), Qt::LeftButton);
        QCOMPARE(updated.count(), 1);
        QCOMPARE(updated.at(0).at(0).toString(), inviteId);
        QCOMPARE(Scalar("SELECT RSVP_RECEIVED_FG FROM INVITE WHERE INVITE_ID = ?", {inviteId}),
                 QStringLiteral("Y"));
        const QString row =
            "SELECT ATTENDING_FG || '/' || IFNULL(MEAL_ID, '') || '/' || IFNULL(DINING_TABLE_ID, '') "
            "FROM CONTACT WHERE CONTACT_ID = ?";
        QCOMPARE(Scalar(row, {ids[0]}), "Y/" + MealId("Fish") + "/");
        QCOMPARE(Scalar(row, {ids[1]}), QStringLiteral("N//")); // not coming: no meal, no seat
    }

    // A reply is written whole or not at all.
    void replyIsAllOrNothing() {
        QStringList ids;
        const QString inviteId = SentCouple(&ids);
        const QStringList contacts = Dump("CONTACT"), invites = Dump("INVITE");
        FailOn("UPDATE", "CONTACT", "NEW.CONTACT_ID = " + ids[1]);
        frmRSVP form(inviteId);
        ShowActive(&form);
        Toggle(Child<QCheckBox>(&form, "chkRSVP_RECEIVED_FG"));
        Toggle(Child<QCheckBox>(&form, "chkATTENDING_FG_0"));
        QSignalSpy updated(&form, &frmRSVP::RSVPUpdated);
        QVERIFY(!form.Save());
        QCOMPARE(updated.count(), 0);
        QCOMPARE(db->Messages().Prompts.size(), 1);
        QCOMPARE(Dump("CONTACT"), contacts);
        QCOMPARE(Dump("INVITE"), invites);
    }

    // ---- One attendee -----------------------------------------------------------------------------

    void attendeeSentAway() {
        QStringList ids;
        SentCouple(&ids);
        frmAttendee form(ids[1]);
        ShowActive(&form);
        QCOMPARE(form.windowTitle(), QStringLiteral("Attendee"));
        QCOMPARE(Child<QLabel>(&form, "lblTop")->text(), QStringLiteral("Mrs. Mary Smith"));
        auto* meal = Child<usrDropdown>(&form, "usrMEAL_DICT");
        QCOMPARE(meal->Text(), QStringLiteral("Beef"));
        Toggle(Child<QCheckBox>(&form, "chkATTENDING_FG"));
        QVERIFY(!meal->isEnabled());
        QSignalSpy updated(&form, &frmAttendee::AttendeeUpdated);
        QTest::mouseClick(Child<QPushButton>(&form, "cmdSave"), Qt::LeftButton);
        QCOMPARE(updated.count(), 1);
        QCOMPARE(
            Scalar("SELECT ATTENDING_FG || IFNULL(MEAL_ID, '-') || IFNULL(DINING_TABLE_ID, '-') FROM CONTACT "
                   "WHERE CONTACT_ID = ?",
                   {ids[1]}),
            QStringLiteral("N--"));
    }
};

QTEST_MAIN(tst_frmRSVP)
#include "tst_frmRSVP.moc"
