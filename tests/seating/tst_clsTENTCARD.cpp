#include "TestDatabase.h"
#include "guests/GuestTestData.h"
#include "guests/clsCONTACT.h"
#include "seating/clsTENTCARD.h"

#include <QtTest>
#include <memory>

using namespace GuestTestData;

namespace {

// Contacts in memory, as "Title|First|Middle|Last|Suffix|Nick|GuestOf"; GuestOf only marks a guest.
QList<clsCONTACT> Group(const QStringList& people) {
    QList<clsCONTACT> group;
    for (int i = 0; i < people.size(); ++i) {
        const Person p = ParsePerson(people[i]);
        clsCONTACT c;
        c.CONTACT_ID = QString::number(i + 10);
        c.TITLE_TX = p.Title;
        c.FIRST_NM = p.First;
        c.MIDDLE_NM = p.Middle;
        c.LAST_NM = p.Last;
        c.SUFFIX_TX = p.Suffix;
        c.NICK_NM = p.Nick;
        if (p.GuestOf >= 0)
            c.GUEST_OF_ID = QString::number(p.GuestOf + 10);
        group.append(c);
    }
    return group;
}

QStringList Cards() {
    QStringList cards;
    for (const clsTENTCARD& card : clsTENTCARD::OpenRecords())
        cards << card.DINING_TABLE_NB + ": " + card.TENTCARD_TX + " [" + card.TENTCARD_SORT_TX + "]";
    return cards;
}

} // namespace

class tst_clsTENTCARD : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static QString Scalar(const QString& sql, const QVariantList& values = {}) {
        return TestDatabase::Scalar(sql, values);
    }
    static void Exec(const QString& sql, const QVariantList& values = {}) { TestDatabase::Exec(sql, values); }

    // Two tables. Bride and groom at table 1 with the Smiths (invitation 1) and Ann Lee with her guest
    // (invitation 2); the Joneses split over tables 1 and 2; Tom Ray is not seated.
    void MakeSeating() {
        AddDiningTable(1, 1, "Head");
        AddDiningTable(2, 2, "Garden");
        Exec(
            "UPDATE CONTACT SET FIRST_NM = 'Anna', LAST_NM = 'Zeller', TITLE_TX = 'Ms.', DINING_TABLE_ID = 1 "
            "WHERE CONTACT_ID = 1");
        Exec("UPDATE CONTACT SET FIRST_NM = 'Paul', LAST_NM = 'Young', TITLE_TX = 'Mr.', DINING_TABLE_ID = 1 "
             "WHERE CONTACT_ID = 2");
        AddInvitation({"Mr.|John||Smith|||", "Mrs.|Mary||Smith|||"}, {{"INVITE_RSVP_ID", 1}});
        AddInvitation({"Ms.|Ann||Lee|||", "|Ann's|Guest||||0"}, {{"INVITE_RSVP_ID", 2}});
        QStringList jones;
        AddInvitation({"Mr.|Rob||Jones|||", "Mrs.|Kim||Jones|||"}, {{"INVITE_RSVP_ID", 3}}, &jones);
        AddInvitation({"Mr.|Tom||Ray|||"}, {{"INVITE_RSVP_ID", 4}});
        Exec("UPDATE CONTACT SET DINING_TABLE_ID = 1 WHERE INVITE_ID IN (1, 2)");
        Exec("UPDATE CONTACT SET DINING_TABLE_ID = 1 WHERE CONTACT_ID = ?", {jones[0]});
        Exec("UPDATE CONTACT SET DINING_TABLE_ID = 2 WHERE CONTACT_ID = ?", {jones[1]});
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void wording_data() {
        QTest::addColumn<QStringList>("people");
        QTest::addColumn<QString>("formal");
        QTest::addColumn<QString>("personal");
        QTest::newRow("one judge") << QStringList{"Judge|John|Q.|Smith|||"} << "The Honorable John Q. Smith"
                                   << "John Q. Smith";
        QTest::newRow("Mr. and Mrs.")
            << QStringList{"Mr.|John||Smith|||", "Mrs.|Mary||Smith|||"} << "Mr. and Mrs. John Smith"
            << "John and Mary Smith";
        QTest::newRow("with a child")
            << QStringList{"Mr.|John||Smith|||", "Mrs.|Mary||Smith|||", "|Ann||Smith|||"}
            << "Mr. and Mrs. John Smith and Ann"
            << "John, Mary and Ann Smith";
        QTest::newRow("nicknames before the last")
            << QStringList{"Mr.|William||Smith||Bill|", "Mrs.|Mary||Smith||Molly|"}
            << "Mr. and Mrs. William Smith"
            << "Bill and Mary Smith";
        QTest::newRow("and Guest") << QStringList{"Mr.|John||Smith|||", "|John's|Guest||||0"}
                                   << "Mr. John Smith and Guest"
                                   << "John Smith and Guest";
        QTest::newRow("guest with a name")
            << QStringList{"Ms.|Ann||Lee|||", "Mr.|Tom||Hill|Jr.||0"} << "Ms. Ann Lee and Mr. Tom Hill, Jr."
            << "Ann Lee and Tom Hill, Jr.";
        QTest::newRow("couple with guest")
            << QStringList{"Mr.|John||Smith|||", "Mrs.|Mary||Smith|||", "|Mary's|Guest||||1"}
            << "Mr. and Mrs. John Smith and Guest"
            << "John and Mary Smith and Guest";
        QTest::newRow("two doctors") << QStringList{"Dr.|John||Smith|||", "Dr.|Mary||Smith|||"}
                                     << "Drs. John and Mary Smith"
                                     << "John and Mary Smith";
        QTest::newRow("Mr. and Dr.") << QStringList{"Mr.|John||Smith|||", "Dr.|Mary||Smith|||"}
                                     << "Dr. Mary Smith and Mr. John Smith"
                                     << "John and Mary Smith";
        QTest::newRow("Judge and Mrs.") << QStringList{"Judge|John||Smith|||", "Mrs.|Mary||Smith|||"}
                                        << "The Honorable and Mrs. John Smith"
                                        << "John and Mary Smith";
        QTest::newRow("Dr without period does not join")
            << QStringList{"Dr|John||Smith|||", "Mrs.|Mary||Smith|||"} << "Dr John Smith and Mrs. Mary Smith"
            << "John and Mary Smith";
        QTest::newRow("Mrs without period is no lady here")
            << QStringList{"Mr.|John||Smith|||", "Mrs|Mary||Smith|||"} << "Mr. John Smith and Mrs Mary Smith"
            << "John and Mary Smith";
        QTest::newRow("Herr und Frau")
            << QStringList{"Herr|Hans||Müller|||", "Frau|Anna||Müller|||"} << "Herr und Frau Hans Müller"
            << "Hans und Anna Müller";
        QTest::newRow("Sr. y Sra.") << QStringList{"Sr.|José||García|||", "Sra.|Ana||García|||"}
                                    << "Sr. y Sra. José García"
                                    << "José y Ana García";
        QTest::newRow("partners of two names")
            << QStringList{"Mr.|John||Smith|||", "Ms.|Mary||Jones|||"} << "Mr. John Smith and Ms. Mary Jones"
            << "John and Mary Jones";
        QTest::newRow("guest alone, host elsewhere")
            << QStringList{"|John's|Guest||||5", "|Sue||Park|||"} << "John's Guest and Sue Park"
            << "John's Guest and Sue Park";
        QTest::newRow("nobody") << QStringList{} << ""
                                << "";
    }
    void wording() {
        QFETCH(QStringList, people);
        QFETCH(QString, formal);
        QFETCH(QString, personal);
        const QList<clsCONTACT> group = Group(people);
        QCOMPARE(clsTENTCARD::GetTENTCARD_TX(group, true), formal);
        QCOMPARE(clsTENTCARD::GetTENTCARD_TX(group, false), personal);
        // The etiquette kept with the data for tent cards is its own, apart from the envelopes'.
        SetEtiquette(false, true);
        QCOMPARE(clsTENTCARD::GetTENTCARD_TX(group), formal);
        SetEtiquette(true, false);
        QCOMPARE(clsTENTCARD::GetTENTCARD_TX(group), personal);
    }

    // Each row changes the seating of MakeSeating, refreshes, runs its hand edits, refreshes again.
    void refresh_data() {
        QTest::addColumn<QStringList>("changes");
        QTest::addColumn<bool>("formal");
        QTest::addColumn<QString>("handEdit");
        QTest::addColumn<QStringList>("cards");
        const QStringList asSeated = {"1: Mr. Rob Jones [Jones]", "1: Ms. Ann Lee and Guest [Lee]",
                                      "1: Mr. and Mrs. John Smith [Smith]",
                                      "1: Mr. and Mrs. Paul Young [Zeller]", "2: Mrs. Kim Jones [Jones]"};
        QTest::newRow("one card per invitation and table") << QStringList() << true << "" << asSeated;
        QTest::newRow("a hand edit lasts until the refresh")
            << QStringList() << true << "UPDATE TENTCARD SET TENTCARD_TX = 'Our dear Joneses'" << asSeated;
        QTest::newRow("a couple split over two tables, personal")
            << QStringList{"UPDATE CONTACT SET DINING_TABLE_ID = 2 WHERE FIRST_NM = 'Mary'",
                           "UPDATE CONTACT SET DINING_TABLE_ID = NULL WHERE INVITE_ID IN (2, 3)"}
            << false << ""
            << QStringList{"1: John Smith [Smith]", "1: Mr. and Mrs. Paul Young [Zeller]",
                           "2: Mary Smith [Smith]"};
        const QStringList brideApart = {"UPDATE CONTACT SET DINING_TABLE_ID = 2 WHERE CONTACT_ID = 1",
                                        "UPDATE CONTACT SET DINING_TABLE_ID = NULL WHERE CONTACT_ID > 2"};
        const QStringList apartCards = {"1: Mr. and Mrs. Paul Young [Young]",
                                        "2: Mr. and Mrs. Paul Young [Zeller]"};
        QTest::newRow("the bride apart from the groom, personal") << brideApart << false << "" << apartCards;
        QTest::newRow("the bride apart from the groom, formal") << brideApart << true << "" << apartCards;
        QTest::newRow("the groom seated alone")
            << QStringList{"UPDATE CONTACT SET DINING_TABLE_ID = NULL WHERE CONTACT_ID <> 2"} << true << ""
            << QStringList{"1: Mr. and Mrs. Paul Young [Young]"};
        QTest::newRow("two invitations without RSVP IDs share no card")
            << QStringList{"UPDATE INVITE SET INVITE_RSVP_ID = NULL",
                           "UPDATE CONTACT SET DINING_TABLE_ID = NULL WHERE INVITE_ID IN (2, 3)",
                           "UPDATE CONTACT SET DINING_TABLE_ID = 1 WHERE INVITE_ID = 4"}
            << true << ""
            << QStringList{"1: Mr. Tom Ray [Ray]", "1: Mr. and Mrs. John Smith [Smith]",
                           "1: Mr. and Mrs. Paul Young [Zeller]"};
    }
    void refresh() {
        QFETCH(QStringList, changes);
        QFETCH(bool, formal);
        QFETCH(QString, handEdit);
        QFETCH(QStringList, cards);
        MakeSeating();
        for (const QString& change : changes)
            Exec(change);
        SetEtiquette(!formal, formal);
        clsTENTCARD::RefreshTentcards();
        if (!handEdit.isEmpty()) {
            Exec(handEdit);
            QCOMPARE(clsTENTCARD::OpenRecords().first().TENTCARD_TX, QStringLiteral("Our dear Joneses"));
            clsTENTCARD::RefreshTentcards();
        }
        QCOMPARE(Cards(), cards);
        QCOMPARE(clsTENTCARD::Total(), long(cards.size()));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void failedRefreshKeepsTheCardsThereWere() {
        MakeSeating();
        clsTENTCARD::RefreshTentcards();
        Exec("UPDATE TENTCARD SET TENTCARD_TX = 'edited' WHERE TENTCARD_ID = 1");
        const QStringList before = Cards();
        FailOn("INSERT", "TENTCARD", "(SELECT COUNT(*) FROM TENTCARD) >= 2");
        QVERIFY_THROWS_EXCEPTION(clsDbError, clsTENTCARD::RefreshTentcards());
        QCOMPARE(Cards(), before);
    }

    void guestWithoutSurnameSortsByTheCard() {
        AddDiningTable(1, 1, "Head");
        AddDiningTable(2, 2, "Garden");
        QStringList ids;
        AddInvitation({"Ms.|Ann||Lee|||", "|Ann's|Guest||||0"}, {{"INVITE_RSVP_ID", 1}}, &ids);
        Exec("UPDATE CONTACT SET DINING_TABLE_ID = 1 WHERE CONTACT_ID = ?", {ids[0]});
        Exec("UPDATE CONTACT SET DINING_TABLE_ID = 2 WHERE CONTACT_ID = ?", {ids[1]});
        SetEtiquette(false, false);
        clsTENTCARD::RefreshTentcards();
        QCOMPARE(Cards(), QStringList({"1: Ann Lee [Lee]", "2: Ann's Guest [Ann's Guest]"}));
    }

    void cardsOneByOne() {
        AddDiningTable(1, 2, "Head");
        AddDiningTable(2, 1, "Garden");
        clsTENTCARD a;
        a.TENTCARD_TX = "Zed's card";
        a.TENTCARD_SORT_TX = "zed";
        a.DINING_TABLE_ID = "1";
        a.Save(true);
        clsTENTCARD b = a;
        b.TENTCARD_SORT_TX = "Abe";
        b.Save(true);
        clsTENTCARD c = a;
        c.DINING_TABLE_ID = "2";
        c.Save(true);
        QCOMPARE(QStringList({a.TENTCARD_ID, b.TENTCARD_ID, c.TENTCARD_ID}), QStringList({"1", "2", "3"}));
        QCOMPARE(Cards(), QStringList({"1: Zed's card [zed]", "2: Zed's card [Abe]", "2: Zed's card [zed]"}));
        clsTENTCARD::Delete("3");
        clsTENTCARD d = a;
        d.Save(true);
        QCOMPARE(d.TENTCARD_ID, QString("3"));
        // A card needs a table that exists and a wording.
        clsTENTCARD bad = a;
        bad.DINING_TABLE_ID = "9";
        QVERIFY_THROWS_EXCEPTION(clsDbError, bad.Save(true));
        QCOMPARE(bad.TENTCARD_ID, a.TENTCARD_ID); // the key of the failed insert is not kept
        bad.DINING_TABLE_ID = "1";
        bad.TENTCARD_TX.clear();
        QVERIFY_THROWS_EXCEPTION(clsDbError, bad.Save(true));
        clsTENTCARD::DeleteAll();
        QCOMPARE(clsTENTCARD::Total(), 0L);
    }

    void createTableFillsTheCards() {
        MakeSeating();
        Exec("DROP TABLE TENTCARD");
        QVERIFY(clsTENTCARD::CreateTable());
        QVERIFY(gDB().ForeignKeyExists("TENTCARD", "TENTCARD_TO_DINING_TABLE_FK"));
        QCOMPARE(clsTENTCARD::Total(), 5L);
        Exec("DELETE FROM TENTCARD WHERE TENTCARD_ID = 1");
        QVERIFY(clsTENTCARD::CreateTable()); // a current table is left as it is
        QCOMPARE(clsTENTCARD::Total(), 4L);
    }
};

QTEST_GUILESS_MAIN(tst_clsTENTCARD)
#include "tst_clsTENTCARD.moc"
