#include "TestDatabase.h"
#include "widgets/clsINVITE_WIDGET.h"
#include "widgets/clsWORDING.h"

#include <QtTest>
#include <memory>

// The wordings of the widgets page and the guest lists of the events other than the wedding day.
class tst_widget_records : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    // Event 2 "Bridal Shower" and 3 "Rehearsal Dinner"; invitation 1 holds the Smiths (3 and 4),
    // contacts 5 "Judge Ann Young" and 6 "Bob Adams" have none.
    static void Fill() {
        TestDatabase::Exec("INSERT INTO EVENT (EVENT_ID, EVENT_TX, EVENT_DT) VALUES "
                           "(2, 'Rehearsal Dinner', '2027-06-04'), (3, 'Bridal Shower', '2027-05-01')");
        TestDatabase::Exec("INSERT INTO INVITE (INVITE_ID, INVITE_RSVP_ID, DISPLAY_AS_TX, OUTER_ENVELOPE_TX) "
                           "VALUES (1, 1, 'Smith, John and Mary', 'Mr. and Mrs. John Smith')");
        TestDatabase::Exec(
            "INSERT INTO CONTACT (CONTACT_ID, TITLE_TX, FIRST_NM, LAST_NM, ADDRESS_TX, PHONE_TX, EMAIL_TX, "
            "INVITE_ID, PRIMARY_CONTACT_FG, SORT_ORDER_NB, ROLE_ID) VALUES "
            "(3, 'Mr.', 'John', 'Smith', '1 Elm St' || char(13, 10) || 'Salem, MA', '555-0100', "
            "'js@example.com', "
            "1, 'Y', 1, 18), "
            "(4, 'Mrs.', 'Mary', 'Smith', NULL, NULL, NULL, 1, 'N', 2, 18), "
            "(5, 'Judge', 'Ann', 'Young', '9 Oak Ave', '555-0199', NULL, NULL, 'N', 1, 18), "
            "(6, 'Mr.', 'Bob', 'Adams', NULL, NULL, NULL, NULL, 'N', 1, 18)");
    }
    static clsINVITE_WIDGET Invite(const QString& event, const QString& contact, const QString& invite) {
        clsINVITE_WIDGET row;
        row.EVENT_ID = event;
        row.CONTACT_ID = contact;
        row.INVITE_ID = invite;
        row.Save(true);
        return row;
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void wordingTableIsMadeWithItsThreeRows() {
        TestDatabase::Exec("UPDATE WORDING SET WORDING_TX = 'kept' WHERE WORDING_ID = 1");
        QVERIFY(!clsWORDING::CreateTable());
        clsWORDING kept;
        QVERIFY(kept.OpenRecord("1"));
        QCOMPARE(kept.WORDING_TX, QStringLiteral("kept"));
        TestDatabase::Exec("DROP TABLE WORDING");
        QVERIFY(clsWORDING::CreateTable());
        QCOMPARE(TestDatabase::Scalar("SELECT GROUP_CONCAT(WORDING_ID) FROM WORDING"),
                 QStringLiteral("1,2,3"));
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM WORDING WHERE WORDING_TX IS NULL"),
                 QStringLiteral("3"));
        clsWORDING().Delete("3");
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM WORDING"), QStringLiteral("2"));
    }

    void listOfAnEventShowsContactsAndInvitationsTogether() {
        Fill();
        const clsINVITE_WIDGET first = Invite("3", "", "1");
        QCOMPARE(first.INVITE_WIDGET_ID, QStringLiteral("1"));
        Invite("3", "5", "");
        Invite("3", "6", "");
        Invite("2", "6", "");

        const QList<clsINVITE_WIDGET> rows = clsINVITE_WIDGET::OpenRecords("3");
        QCOMPARE(rows.size(), 3);
        QStringList names;
        for (const auto& row : rows)
            names << row.DISPLAY_NM;
        QCOMPARE(names, QStringList({"Adams", "Smith, John and Mary", "Young"}));

        const clsINVITE_WIDGET& smiths = rows[1];
        QCOMPARE(smiths.EVENT_TX, QStringLiteral("Bridal Shower"));
        QCOMPARE(smiths.CONTACT_ID, QString());
        QCOMPARE(smiths.NAME_TX, QStringLiteral("Mr. and Mrs. John Smith"));
        QCOMPARE(smiths.PEOPLE_NB, 2);
        QCOMPARE(smiths.PHONE_TX, QStringLiteral("555-0100"));
        QCOMPARE(smiths.OUTER_ENVELOPE_ADDRESS_TX_Text(false), QStringLiteral("1 Elm St, Salem, MA"));
        QCOMPARE(smiths.OUTER_ENVELOPE_ADDRESS_TX_Text(true), QStringLiteral("1 Elm St\r\nSalem, MA"));

        const clsINVITE_WIDGET& judge = rows[2];
        QCOMPARE(judge.NAME_TX, QStringLiteral("The Honorable Ann Young"));
        QCOMPARE(judge.OUTER_ENVELOPE_ADDRESS_TX_Text(false), QStringLiteral("9 Oak Ave"));
        QCOMPARE(judge.PEOPLE_NB, 1);

        QCOMPARE(clsINVITE_WIDGET::GetTotal("3"), 3L);
        QCOMPARE(clsINVITE_WIDGET::GetTotalContacts("3"), 4L);
        QCOMPARE(clsINVITE_WIDGET::GetTotal("2"), 1L);
        QCOMPARE(clsINVITE_WIDGET::GetTotalContacts("2"), 1L);
        QCOMPARE(clsINVITE_WIDGET::GetTotal("1"), 0L);
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void deleteTakesOffOneEntryOrTheWholeList_data() {
        QTest::addColumn<QString>("contact");
        QTest::addColumn<QString>("invite");
        QTest::addColumn<long>("leftOnShower");
        QTest::newRow("a contact") << "5"
                                   << "" << 2L;
        QTest::newRow("an invitation") << ""
                                       << "1" << 2L;
        QTest::newRow("the whole list") << ""
                                        << "" << 0L;
        QTest::newRow("someone not on it") << "4"
                                           << "" << 3L;
    }
    void deleteTakesOffOneEntryOrTheWholeList() {
        QFETCH(QString, contact);
        QFETCH(QString, invite);
        QFETCH(long, leftOnShower);
        Fill();
        Invite("3", "", "1");
        Invite("3", "5", "");
        Invite("3", "6", "");
        Invite("2", "5", "");
        clsINVITE_WIDGET::Delete("3", contact, invite);
        QCOMPARE(clsINVITE_WIDGET::GetTotal("3"), leftOnShower);
        QCOMPARE(clsINVITE_WIDGET::GetTotal("2"), 1L);
    }

    void draggingAnInvitationAwayAndBackLeavesOneRow() {
        Fill();
        Invite("3", "", "1");
        clsINVITE_WIDGET::Delete("3", "", "1");
        Invite("3", "", "1");
        QCOMPARE(clsINVITE_WIDGET::GetTotal("3"), 1L);
    }

    void eventsWithAListComeByDate() {
        Fill();
        QVERIFY(clsINVITE_WIDGET::OpenEvents().isEmpty());
        Invite("2", "5", "");
        Invite("3", "5", "");
        Invite("3", "6", "");
        const QList<clsINVITE_WIDGET> events = clsINVITE_WIDGET::OpenEvents();
        QCOMPARE(events.size(), 2);
        QCOMPARE(events[0].EVENT_TX, QStringLiteral("Bridal Shower"));
        QCOMPARE(events[1].EVENT_ID, QStringLiteral("2"));
    }

    void listsGoWithTheirEventContactOrInvitation() {
        Fill();
        Invite("3", "", "1");
        Invite("3", "6", "");
        Invite("2", "6", "");
        TestDatabase::Exec("DELETE FROM CONTACT WHERE CONTACT_ID = 6");
        QCOMPARE(clsINVITE_WIDGET::GetTotal("3"), 1L);
        TestDatabase::Exec("DELETE FROM EVENT WHERE EVENT_ID = 3");
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM INVITE_WIDGET"), QStringLiteral("0"));
    }

    // A contact's row leaves INVITE_ID NULL and an invitation's leaves CONTACT_ID NULL: neither may
    // empty the other kind's candidates.
    void candidatesAreThoseNotOnTheList() {
        Fill();
        clsINVITE_WIDGET::Invite("3", {"CONTACT5", "BOGUS", "CONTACT5"});
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM INVITE_WIDGET"), QStringLiteral("1"));
        QStringList invitations;
        for (const clsINVITE_WIDGET::Candidate& c : clsINVITE_WIDGET::Candidates("3", false))
            invitations << c.Key + ":" + c.Caption;
        QCOMPARE(invitations, QStringList{"INVITE1:Smith, John and Mary"});

        clsINVITE_WIDGET::Invite("3", {"INVITE1"});
        QVERIFY(clsINVITE_WIDGET::Candidates("3", false).isEmpty());
        QStringList contacts;
        for (const clsINVITE_WIDGET::Candidate& c : clsINVITE_WIDGET::Candidates("3", true))
            contacts << c.Key;
        QVERIFY(contacts.contains("CONTACT6") && contacts.contains("CONTACT3"));
        QVERIFY(!contacts.contains("CONTACT5"));
        // Another event's list is its own.
        QCOMPARE(clsINVITE_WIDGET::Candidates("2", false).size(), 1);

        clsINVITE_WIDGET::Uninvite("3", {"CONTACT5", "INVITE1"});
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM INVITE_WIDGET"), QStringLiteral("0"));
    }
};

QTEST_GUILESS_MAIN(tst_widget_records)
#include "tst_widget_records.moc"
