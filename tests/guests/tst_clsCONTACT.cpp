#include "TestDatabase.h"
#include "core/RecordIO.h"
#include "core/modGeneral.h"
#include "guests/GuestTestData.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"

#include <QtTest>
#include <memory>

using namespace GuestTestData;

using NameFormat = QString (clsCONTACT::*)() const;
Q_DECLARE_METATYPE(NameFormat)

namespace {

QStringList Ids(const QList<clsCONTACT>& contacts) {
    QStringList ids;
    for (const clsCONTACT& c : contacts)
        ids << c.CONTACT_ID;
    return ids;
}

QStringList Sorted(QStringList list) {
    std::sort(list.begin(), list.end(),
              [](const QString& a, const QString& b) { return a.toInt() < b.toInt(); });
    return list;
}

QStringList Split(const QString& ids) {
    return ids.isEmpty() ? QStringList() : ids.split(QLatin1Char(','));
}

// A small wedding. Bride (1) and groom (2) attend; the bride sits at the table numbered 1.
//   3 Ann Adams   bride's side, A list, invitation 1 (sent, replied), attends, Beef, table numbered 2,
//                 flight and hotel, address, e-mail, phone
//   4 Bob Adams   bride's side, A, invitation 1, attends without meal or table, out of town
//   5 Cid brown   groom's side, B, invitation 1, declined, a boy, e-mail
//   6 Dee Clark   both sides, B, invitation 2 (sent, no reply), out of town, address, phone
//   7 Eve Dunn    groom's side, A, invitation 3 (not sent), a girl
//   8 Fay Evans   both sides, A, not invited, maid of honour, e-mail
void MakeWedding() {
    AddDiningTable(1, 2, "Roses");
    AddDiningTable(2, 1, "Lilies");
    AddFlight(1);
    AddHotel(1);
    TestDatabase::Exec(
        "UPDATE CONTACT SET FIRST_NM = 'Anna', LAST_NM = 'Zeller', DINING_TABLE_ID = 2, MEAL_ID = 2 "
        "WHERE CONTACT_ID = 1");
    TestDatabase::Exec("UPDATE CONTACT SET FIRST_NM = 'Paul', LAST_NM = 'Young' WHERE CONTACT_ID = 2");
    const QString i1 = AddInvite({{"INVITE_RSVP_ID", 1}, {"INVITE_SENT_FG", "Y"}, {"RSVP_RECEIVED_FG", "Y"}});
    const QString i2 = AddInvite({{"INVITE_RSVP_ID", 2}, {"INVITE_SENT_FG", "Y"}, {"RSVP_RECEIVED_FG", "N"}});
    const QString i3 = AddInvite({{"INVITE_RSVP_ID", 3}});
    AddContact({{"FIRST_NM", "Ann"},
                {"LAST_NM", "Adams"},
                {"FRIEND_OF_CD", 1},
                {"AB_LIST_CD", "A"},
                {"INVITE_ID", i1},
                {"PRIMARY_CONTACT_FG", "Y"},
                {"SORT_ORDER_NB", 1},
                {"ATTENDING_FG", "Y"},
                {"MEAL_ID", 1},
                {"DINING_TABLE_ID", 1},
                {"GENDER_FG", "F"},
                {"ADDRESS_TX", "1 Elm St"},
                {"EMAIL_TX", "ann@example.org"},
                {"PHONE_TX", "555-0101"},
                {"FLIGHT_ID", 1},
                {"HOTEL_ID", 1}});
    AddContact({{"FIRST_NM", "Bob"},
                {"LAST_NM", "Adams"},
                {"FRIEND_OF_CD", 1},
                {"AB_LIST_CD", "A"},
                {"INVITE_ID", i1},
                {"SORT_ORDER_NB", 2},
                {"ATTENDING_FG", "Y"},
                {"OUT_OF_TOWNER_FG", "Y"},
                {"ADDRESS_TX", "1 Elm St"},
                {"PHONE_TX", "555-0102"}});
    AddContact({{"FIRST_NM", "Cid"},
                {"LAST_NM", "brown"},
                {"FRIEND_OF_CD", 2},
                {"AB_LIST_CD", "B"},
                {"INVITE_ID", i1},
                {"SORT_ORDER_NB", 3},
                {"CHILD_FG", "Y"},
                {"EMAIL_TX", "cid@example.org"}});
    AddContact({{"FIRST_NM", "Dee"},
                {"LAST_NM", "Clark"},
                {"FRIEND_OF_CD", 3},
                {"AB_LIST_CD", "B"},
                {"INVITE_ID", i2},
                {"PRIMARY_CONTACT_FG", "Y"},
                {"SORT_ORDER_NB", 1},
                {"GENDER_FG", "F"},
                {"OUT_OF_TOWNER_FG", "Y"},
                {"ADDRESS_TX", "9 Oak Ave"},
                {"PHONE_TX", "555-0106"}});
    AddContact({{"FIRST_NM", "Eve"},
                {"LAST_NM", "Dunn"},
                {"FRIEND_OF_CD", 2},
                {"AB_LIST_CD", "A"},
                {"INVITE_ID", i3},
                {"PRIMARY_CONTACT_FG", "Y"},
                {"SORT_ORDER_NB", 1},
                {"GENDER_FG", "F"},
                {"CHILD_FG", "Y"}});
    AddContact({{"FIRST_NM", "Fay"},
                {"LAST_NM", "Evans"},
                {"FRIEND_OF_CD", 3},
                {"AB_LIST_CD", "A"},
                {"GENDER_FG", "F"},
                {"ROLE_ID", 7},
                {"EMAIL_TX", "fay@example.org"}});
}

clsCONTACT Contact(const QString& id) {
    clsCONTACT c;
    c.OpenRecord(id);
    return c;
}

} // namespace

class tst_clsCONTACT : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    // ---- Filters ----------------------------------------------------------------------------------

    void filterCodesSelectTheirPeople_data() {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("ids"); // with the couple / without them
        const QString all = "1,2,3,4,5,6,7,8";
        QTest::newRow("0 all (the flag has no effect)") << 0 << all + "/" + all;
        QTest::newRow("1 bride's friends") << 1 << "1,3,4/1,3,4";
        QTest::newRow("2 groom's friends") << 2 << "2,5,7/2,5,7";
        QTest::newRow("3 both") << 3 << "6,8/6,8";
        QTest::newRow("4 A list") << 4 << "1,2,3,4,7,8/1,2,3,4,7,8";
        QTest::newRow("5 B list") << 5 << "5,6/5,6";
        QTest::newRow("6 invited") << 6 << "3,4,5,6/3,4,5,6";
        QTest::newRow("7 not yet invited, never the couple") << 7 << "7,8/7,8";
        QTest::newRow("8 no address") << 8 << "1,2,5,7,8/1,2,5,7,8";
        QTest::newRow("9 invited, bride's") << 9 << "3,4/3,4";
        QTest::newRow("14 attending") << 14 << "1,2,3,4/3,4";
        QTest::newRow("15 attending, bride's") << 15 << "1,3,4/3,4";
        QTest::newRow("17 attending, both") << 17 << "/";
        QTest::newRow("20 declined") << 20 << "5/5";
        QTest::newRow("21 seated") << 21 << "1,3/3";
        QTest::newRow("22 attending, not seated") << 22 << "2,4/4";
        QTest::newRow("23 has a role") << 23 << "1,2,8/1,2,8";
        QTest::newRow("24 local") << 24 << "1,2,3,5,7,8/1,2,3,5,7,8";
        QTest::newRow("25 out of town") << 25 << "4,6/4,6";
        QTest::newRow("30 no e-mail") << 30 << "1,2,4,6,7/1,2,4,6,7";
        QTest::newRow("31 no phone") << 31 << "1,2,5,7,8/1,2,5,7,8";
        QTest::newRow("32 attending, no flight (couple always)") << 32 << "1,2,4/1,2,4";
        QTest::newRow("33 attending, flight") << 33 << "3/3";
        QTest::newRow("34 attending, no hotel (couple always)") << 34 << "1,2,4/1,2,4";
        QTest::newRow("35 attending, hotel") << 35 << "3/3";
        QTest::newRow("36 invited, no reply") << 36 << "6/6";
        QTest::newRow("37 men") << 37 << "2,4,5/2,4,5";
        QTest::newRow("38 women") << 38 << "1,3,6,7,8/1,3,6,7,8";
        QTest::newRow("41 attending men (couple always)") << 41 << "2,4/2,4";
        QTest::newRow("42 attending women (couple always)") << 42 << "1,3/1,3";
        QTest::newRow("43 adults") << 43 << "1,2,3,4,6,8/1,2,3,4,6,8";
        QTest::newRow("44 children") << 44 << "5,7/5,7";
        QTest::newRow("47 attending adults") << 47 << "1,2,3,4/1,2,3,4";
        QTest::newRow("999 attending, no meal") << 999 << "2,4/4";
        QTest::newRow("1000 everybody") << 1000 << all + "/" + all;
        QTest::newRow("unknown code, everybody") << 77 << all + "/" + all;
    }
    void filterCodesSelectTheirPeople() {
        QFETCH(int, filter);
        QFETCH(QString, ids);
        const QString withCouple = ids.section(QLatin1Char('/'), 0, 0);
        const QString withoutCouple = ids.section(QLatin1Char('/'), 1);
        MakeWedding();
        QCOMPARE(Sorted(Ids(clsCONTACT::OpenRecords(filter, {}, {}, false))), Split(withCouple));
        QCOMPARE(Sorted(Ids(clsCONTACT::OpenRecords(filter, {}, {}, true))), Split(withoutCouple));
        QCOMPARE(clsCONTACT::GetTotal(filter, {}, false), long(Split(withCouple).size()));
        QCOMPARE(clsCONTACT::GetTotal(filter, {}, true), long(Split(withoutCouple).size()));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void customConditionTakesThePlaceOfTheCode_data() {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("condition");
        QTest::addColumn<bool>("exclude");
        QTest::addColumn<QString>("listed");
        QTest::addColumn<long>("counted");
        QTest::newRow("women, couple kept") << 14 << "CONTACT.GENDER_FG = 'F'" << false << "1,3,6,7,8" << 5L;
        QTest::newRow("women, couple left out") << 14 << "CONTACT.GENDER_FG = 'F'" << true << "3,6,7,8" << 4L;
        // The count's join word follows the code alone: an inner join drops the uninvited.
        QTest::newRow("uninvited, left join") << 0 << "INVITE.INVITE_ID Is Null" << false << "1,2,8" << 3L;
        QTest::newRow("uninvited, inner join of code 6")
            << 6 << "INVITE.INVITE_ID Is Null" << false << "1,2,8" << 0L;
        QTest::newRow("meal by name")
            << 1000 << "CONTACT.ATTENDING_FG = 'Y' AND MEAL_DICT.MEAL_TX = 'Beef'" << false << "3" << 1L;
        QTest::newRow("meal by id") << 1000 << "CONTACT.MEAL_ID = 2" << false << "1" << 1L;
        QTest::newRow("table name") << 0 << "DINING_TABLE.DINING_TABLE_NM = 'Roses'" << false << "3" << 1L;
    }
    void customConditionTakesThePlaceOfTheCode() {
        QFETCH(int, filter);
        QFETCH(QString, condition);
        QFETCH(bool, exclude);
        QFETCH(QString, listed);
        QFETCH(long, counted);
        MakeWedding();
        QCOMPARE(Sorted(Ids(clsCONTACT::OpenRecords(filter, condition, {}, exclude))), Split(listed));
        QCOMPARE(clsCONTACT::GetTotal(filter, condition, exclude), counted);
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void listsComeInTheirOrder_data() {
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("sort");
        QTest::addColumn<QString>("order");
        QTest::newRow("by name, case does not matter") << 0 << ""
                                                       << "3,4,5,6,7,8,2,1";
        QTest::newRow("seated by table number") << 21 << ""
                                                << "1,3";
        QTest::newRow("caller's sort") << 6 << "CONTACT.FIRST_NM DESC"
                                       << "6,5,4,3";
    }
    void listsComeInTheirOrder() {
        QFETCH(int, filter);
        QFETCH(QString, sort);
        QFETCH(QString, order);
        MakeWedding();
        QCOMPARE(Ids(clsCONTACT::OpenRecords(filter, {}, sort, false)), Split(order));
    }

    void openRecordJoinsWhatThePersonShows() {
        MakeWedding();
        clsCONTACT ann = Contact("3");
        QCOMPARE(ann.MEAL_TX, QString("Beef"));
        QCOMPARE(ann.DINING_TABLE_NB, QString("2"));
        QCOMPARE(ann.DINING_TABLE_NM, QString("Roses"));
        QCOMPARE(ann.INVITE_RSVP_ID, QString("1"));
        QCOMPARE(ann.INVITE_SENT_FG, QString("Y"));
        QCOMPARE(ann.FLIGHT_NM, QString("UA 1"));
        QCOMPARE(ann.ARRIVES_DT.left(11), QString("04-Jun-2027"));
        QCOMPARE(ann.HOTEL_NM, QString("Harbor Inn"));
        QCOMPARE(Contact("8").ROLE_TX, QString("Maid of Honor"));
        QCOMPARE(Contact("1").ROLE_TX, QString("Bride"));
    }

    void openRecordByEachKey() {
        MakeWedding();
        const QString guest = AddContact({{"FIRST_NM", "Bob's"}, {"MIDDLE_NM", "Guest"}, {"GUEST_OF_ID", 4}});
        clsCONTACT c;
        QVERIFY(c.OpenRecord({}, "7"));
        QCOMPARE(c.CONTACT_ID, QString("8"));
        QVERIFY(c.OpenRecord({}, {}, "CID@example.org"));
        QCOMPARE(c.CONTACT_ID, QString("5"));
        QVERIFY(c.OpenRecord({}, {}, {}, "4"));
        QCOMPARE(c.CONTACT_ID, guest);
        QCOMPARE(c.GUEST_OF_FULL_NM(), QString("Bob Adams"));
        // A later key wins over an earlier one.
        QVERIFY(c.OpenRecord("3", "7"));
        QCOMPARE(c.CONTACT_ID, QString("8"));
        // No key, or no row: the object stays as it was, and nothing is shown.
        c.NOTES_TX = "kept";
        QVERIFY(!c.OpenRecord({}));
        QVERIFY(!c.OpenRecord("999"));
        QCOMPARE(c.CONTACT_ID, QString("8"));
        QCOMPARE(c.NOTES_TX, QString("kept"));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    // ---- Names and values -------------------------------------------------------------------------

    void nameFormats_data() {
        QTest::addColumn<QString>("person");
        QTest::addColumn<NameFormat>("format");
        QTest::addColumn<QString>("expected");
        const QString jr = "Mr.|John|Q.|Smith|Jr.|Jack";
        const QString plain = "|John||Smith||";
        QTest::newRow("FirstLast") << jr << &clsCONTACT::FirstLast << "John Smith";
        QTest::newRow("FirstLast anonymous guest")
            << "|John's|Guest||||4" << &clsCONTACT::FirstLast << "John's Guest";
        QTest::newRow("FirstLast middle Guest, no host")
            << "|Pat|Guest|Smith||" << &clsCONTACT::FirstLast << "Pat Smith";
        QTest::newRow("FirstLast guest with a name")
            << "|Tom|Guest|Hill|||4" << &clsCONTACT::FirstLast << "Tom Guest";
        QTest::newRow("FirstMiddle") << jr << &clsCONTACT::FirstMiddle << "John Q.";
        QTest::newRow("FirstMiddle no middle") << plain << &clsCONTACT::FirstMiddle << "John";
        QTest::newRow("FirstMiddleLast") << jr << &clsCONTACT::FirstMiddleLast << "John Q. Smith";
        QTest::newRow("FirstMiddleLast no last keeps space")
            << "|John|||||" << &clsCONTACT::FirstMiddleLast << "John ";
        QTest::newRow("FirstMiddleLastSuffix Jr.")
            << jr << &clsCONTACT::FirstMiddleLastSuffix << "John Q. Smith, Jr.";
        QTest::newRow("FirstMiddleLastSuffix III")
            << "|John||Smith|III|" << &clsCONTACT::FirstMiddleLastSuffix << "John Smith III";
        QTest::newRow("FirstMiddleLastSuffix sr lower case")
            << "|John||Smith|sr|" << &clsCONTACT::FirstMiddleLastSuffix << "John Smith, sr";
        QTest::newRow("LastFirst") << jr << &clsCONTACT::LastFirst << "Smith, John";
        QTest::newRow("LastFirst no first, untrimmed") << "|||Smith||" << &clsCONTACT::LastFirst << "Smith, ";
        QTest::newRow("LastFirstMiddle") << jr << &clsCONTACT::LastFirstMiddle << "Smith, John Q.";
        QTest::newRow("LastFirstMiddle no middle") << plain << &clsCONTACT::LastFirstMiddle << "Smith, John";
        QTest::newRow("LastFirstSuffix junior keeps its blank")
            << "|John||Smith|Jr.|" << &clsCONTACT::LastFirstSuffix << "Smith, John , Jr.";
        QTest::newRow("LastFirstSuffix III")
            << "|John||Smith|III|" << &clsCONTACT::LastFirstSuffix << "Smith, John III";
        QTest::newRow("LastFirstMiddleSuffix junior")
            << "|John||Smith|Jr.|" << &clsCONTACT::LastFirstMiddleSuffix << "Smith, John, Jr.";
        QTest::newRow("LastFirstMiddleSuffix full")
            << jr << &clsCONTACT::LastFirstMiddleSuffix << "Smith, John Q., Jr.";
        QTest::newRow("LastFirstMiddleSuffix IV")
            << "|John|Q.|Smith|IV|" << &clsCONTACT::LastFirstMiddleSuffix << "Smith, John Q. IV";
        QTest::newRow("LastTitleFirst")
            << "Dr.|John||Smith||" << &clsCONTACT::LastTitleFirst << "Smith, Dr. John";
        QTest::newRow("LastTitleFirst no title") << plain << &clsCONTACT::LastTitleFirst << "Smith, John";
        QTest::newRow("NickOrFirstMiddle nick") << jr << &clsCONTACT::NickOrFirstMiddle << "Jack";
        QTest::newRow("NickOrFirstMiddle no nick")
            << "|John|Q.|Smith||" << &clsCONTACT::NickOrFirstMiddle << "John Q.";
        QTest::newRow("TitleFirstMiddleLastSuffix")
            << jr << &clsCONTACT::TitleFirstMiddleLastSuffix << "Mr. John Q. Smith, Jr.";
        QTest::newRow("TitleFirstMiddleLastSuffix no title")
            << plain << &clsCONTACT::TitleFirstMiddleLastSuffix << "John Smith";
        QTest::newRow("Outer envelope judge")
            << "Judge|Ann||Smith||" << &clsCONTACT::TitleFirstMiddleLastSuffix_OuterEnvelope
            << "The Honorable Ann Smith";
        QTest::newRow("Outer envelope judge any case")
            << "JUDGE|Ann||Smith|III|" << &clsCONTACT::TitleFirstMiddleLastSuffix_OuterEnvelope
            << "The Honorable Ann Smith III";
        QTest::newRow("Outer envelope other title")
            << "Rabbi|Ann||Smith||" << &clsCONTACT::TitleFirstMiddleLastSuffix_OuterEnvelope
            << "Rabbi Ann Smith";
        QTest::newRow("TitleLastOrFirst")
            << "Mrs.|Mary||Smith||" << &clsCONTACT::TitleLastOrFirst << "Mrs. Smith";
        QTest::newRow("TitleLastOrFirst no title")
            << "|Mary||Smith||" << &clsCONTACT::TitleLastOrFirst << "Mary";
    }
    void nameFormats() {
        QFETCH(QString, person);
        QFETCH(NameFormat, format);
        const Person p = ParsePerson(person);
        clsCONTACT c;
        c.TITLE_TX = p.Title;
        c.FIRST_NM = p.First;
        c.MIDDLE_NM = p.Middle;
        c.LAST_NM = p.Last;
        c.SUFFIX_TX = p.Suffix;
        c.NICK_NM = p.Nick;
        c.GUEST_OF_ID = p.GuestOf < 0 ? QString() : QString::number(p.GuestOf);
        QTEST((c.*format)(), "expected");
    }

    void addressPhonesAndFlags_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("multiLine");
        QTest::addColumn<QString>("expected");
        QTest::newRow("two lines") << "12 Oak St\r\nBoston, MA  02101" << true
                                   << "12 Oak St\r\nBoston, MA  02101";
        QTest::newRow("one line") << "12 Oak St\r\nBoston, MA  02101" << false
                                  << "12 Oak St, Boston, MA  02101";
        QTest::newRow("blank lines at the ends go") << "\r\n 12 Oak St\r\n\r\n" << true << "12 Oak St";
        QTest::newRow("empty") << "" << false << "";
    }
    void addressPhonesAndFlags() {
        QFETCH(QString, address);
        QFETCH(bool, multiLine);
        QFETCH(QString, expected);
        clsCONTACT c;
        c.ADDRESS_TX = address;
        QCOMPARE(c.DisplayAddress(multiLine), expected);
    }

    void phoneNumbersShowTheSecondOnlyBesideTheFirst_data() {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("multiLine");
        QTest::addColumn<QString>("expected");
        QTest::newRow("both, one line") << "555-1"
                                        << "555-2" << false << "555-1, 555-2";
        QTest::newRow("both, lines") << "555-1"
                                     << "555-2" << true << "555-1\r\n555-2";
        QTest::newRow("first only") << "555-1"
                                    << "" << true << "555-1";
        QTest::newRow("second only shows nothing") << ""
                                                   << "555-2" << false << "";
    }
    void phoneNumbersShowTheSecondOnlyBesideTheFirst() {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(bool, multiLine);
        QFETCH(QString, expected);
        clsCONTACT c;
        c.PHONE_TX = first;
        c.PHONE2_TX = second;
        QCOMPARE(c.PHONE_NUMBERS(multiLine), expected);
    }

    void parseFullNameOverwritesTheNameFields() {
        clsCONTACT c;
        c.TITLE_TX = "Rabbi";
        c.NICK_NM = "Jack";
        c.MIDDLE_NM = "Old";
        c.ParseFullName("Dr. John Smith Jr.");
        QCOMPARE(QStringList({c.TITLE_TX, c.FIRST_NM, c.MIDDLE_NM, c.LAST_NM, c.SUFFIX_TX, c.NICK_NM}),
                 QStringList({"Dr.", "John", "", "Smith", "Jr.", "Jack"}));
    }

    // ---- Save -------------------------------------------------------------------------------------

    void newContactGetsDefaultsAndNextKey() {
        clsCONTACT c;
        c.FIRST_NM = "Ann";
        c.LAST_NM = "Lee";
        c.Save(true, true);
        QCOMPARE(c.CONTACT_ID, QString("3"));
        QCOMPARE(Scalar("SELECT GENDER_FG || CHILD_FG || OUT_OF_TOWNER_FG FROM CONTACT WHERE CONTACT_ID = 3"),
                 QString("MNN"));
        QCOMPARE(Scalar("SELECT typeof(NICK_NM) || typeof(FRIEND_OF_CD) FROM CONTACT WHERE CONTACT_ID = 3"),
                 QString("nullnull"));
    }

    void keysAreReusedAfterTheHighestRowIsDeleted() {
        clsCONTACT a, b, c;
        for (clsCONTACT* x : {&a, &b, &c}) {
            x->FIRST_NM = "X";
            x->Save(true, false);
        }
        QCOMPARE(c.CONTACT_ID, QString("5"));
        clsCONTACT().Delete("5");
        clsCONTACT d;
        d.Save(true, false);
        QCOMPARE(d.CONTACT_ID, QString("5"));
        clsCONTACT().Delete("4");
        clsCONTACT e;
        e.Save(true, false);
        QCOMPARE(e.CONTACT_ID, QString("6"));
        // Saving a row that is gone succeeds and brings nothing back.
        b.Save(false, false);
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID = 4"), QString("0"));
    }

    void textIsStoredExactly_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << "O'Brien \"Bud\" ''; DROP TABLE CONTACT; --";
        QTest::newRow("emoji") << "Ana 💍👰🏽‍♀️";
        QTest::newRow("10 000 characters") << QString(9999, QChar(0x00E9)) + "x";
        QTest::newRow("line breaks and blanks") << "  a\r\nb\tc  ";
    }
    void textIsStoredExactly() {
        QFETCH(QString, text);
        clsCONTACT c;
        c.FIRST_NM = text;
        c.LAST_NM = text;
        c.NOTES_TX = text;
        c.ADDRESS_TX = text;
        c.Save(true, false);
        clsCONTACT back = Contact(c.CONTACT_ID);
        QCOMPARE(back.FIRST_NM, text);
        QCOMPARE(back.LAST_NM, text);
        QCOMPARE(back.NOTES_TX, text);
        QCOMPARE(back.ADDRESS_TX, text);
        QCOMPARE(back.FirstLast(), text + " " + text);
        QCOMPARE(clsCONTACT::GetTotal(0, "CONTACT.LAST_NM = " + QuoteSQL(text)), 1L);
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    void notAttendingDropsMealAndSeat() {
        MakeWedding();
        clsCONTACT ann = Contact("3");
        ann.ATTENDING_FG = "N";
        ann.Save(false, false);
        QCOMPARE(Scalar("SELECT typeof(MEAL_ID) || typeof(DINING_TABLE_ID) || HOTEL_ID FROM CONTACT WHERE "
                        "CONTACT_ID = 3"),
                 QString("nullnull1"));
        QCOMPARE(clsCONTACT::GetTotal(21), 1L);
    }

    void savingAPersonRelabelsTheirInvitation() {
        const QString invite = AddInvitation({"Mr.|John||Smith||", "Mrs.|Mary||Smith||"});
        clsCONTACT john = Contact("3");
        john.FIRST_NM = "Jon";
        john.Save(false, true);
        QCOMPARE(Scalar("SELECT DISPLAY_AS_TX || ' / ' || OUTER_ENVELOPE_TX FROM INVITE WHERE INVITE_ID = ?",
                        {invite}),
                 QString("Smith, Jon and Mary / Mr. and Mrs. Jon Smith"));
        // Without the refresh, or for a new contact, the invitation stays as it is.
        john.FIRST_NM = "Johnny";
        john.Save(false, false);
        clsCONTACT ann;
        ann.FIRST_NM = "Ann";
        ann.LAST_NM = "Smith";
        ann.INVITE_ID = invite;
        ann.SORT_ORDER_NB = "3";
        ann.Save(true, true);
        QCOMPARE(Scalar("SELECT DISPLAY_AS_TX FROM INVITE WHERE INVITE_ID = ?", {invite}),
                 QString("Smith, Jon and Mary"));
    }

    void failedSaveChangesNothing() {
        const QString invite = AddInvitation({"Mr.|John||Smith||", "Mrs.|Mary||Smith||"});
        const QStringList contacts = Dump("CONTACT");
        FailOn("UPDATE", "INVITE");
        clsCONTACT john = Contact("3");
        john.FIRST_NM = "Jon";
        john.MEAL_ID = "1";
        john.ATTENDING_FG = "N";
        QVERIFY(!RecordIO::Attempt([&] { john.Save(false, true); }));
        QCOMPARE(Dump("CONTACT"), contacts);
        // The object is as it was before the call: the meal that saving drops is still there.
        QCOMPARE(john.MEAL_ID, QString("1"));
        QCOMPARE(john.FIRST_NM, QString("Jon"));
        QCOMPARE(db->Messages().Prompts, QStringList({"forced failure"}));

        // A new contact whose insert fails keeps no key that was never stored.
        Exec("DROP TRIGGER forced_failure");
        FailOn("INSERT", "CONTACT");
        clsCONTACT fresh;
        fresh.FIRST_NM = "Ann";
        QVERIFY(!RecordIO::Attempt([&] { fresh.Save(true, false); }));
        QCOMPARE(fresh.CONTACT_ID, QString());
        QCOMPARE(fresh.GENDER_FG, QString());
        Q_UNUSED(invite);
    }

    void valuesTheColumnCannotHoldAreRefused() {
        clsCONTACT c;
        c.FIRST_NM = "Ann";
        c.FRIEND_OF_CD = "bride";
        QVERIFY(!RecordIO::Attempt([&] { c.Save(true, false); }));
        QCOMPARE(db->Messages().Prompts.size(), 1);
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT"), QString("2"));
    }

    // ---- Delete and its cascades ------------------------------------------------------------------

    void deletingTheFirstPersonMovesThePrimaryMark() {
        QStringList ids;
        const QString invite =
            AddInvitation({"Mr.|John||Smith||", "Mrs.|Mary||Smith||", "|Ann||Smith||"},
                          {{"AUTO_UPDATE_FG", "N"}, {"OUTER_ENVELOPE_TX", "typed by hand"}}, &ids);
        clsCONTACT c;
        c.Delete(ids[0]);
        QCOMPARE(c.CascadeDeletedCONTACT_ID, QString());
        QCOMPARE(Scalar("SELECT PRIMARY_CONTACT_FG FROM CONTACT WHERE CONTACT_ID = ?", {ids[1]}),
                 QString("Y"));
        clsINVITE inv;
        bool found = false;
        found = inv.OpenRecord(invite, false);
        QVERIFY(found);
        // The labels are rewritten even though the user had frozen them.
        QCOMPARE(inv.DISPLAY_AS_TX, QString("Smith, Mary and Ann"));
        QCOMPARE(inv.OUTER_ENVELOPE_TX, QString("Mrs. Mary Smith and Ann Smith"));
    }

    void deletingAHostTakesTheirGuest() {
        QStringList ids;
        const QString invite = AddInvitation({"Ms.|Ann||Lee||", "|Ann's|Guest|||"}, {}, &ids);
        Exec("UPDATE CONTACT SET GUEST_OF_ID = ? WHERE CONTACT_ID = ?", {ids[0], ids[1]});
        clsCONTACT c;
        c.Delete(ids[0]);
        QCOMPARE(c.CascadeDeletedCONTACT_ID, ids[1]);
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID IN (?, ?)", {ids[0], ids[1]}),
                 QString("0"));
        // The invitation lost its last person and is gone.
        QCOMPARE(Scalar("SELECT COUNT(*) FROM INVITE WHERE INVITE_ID = ?", {invite}), QString("0"));
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT"), QString("2"));
    }

    void deletingTheOnlyPersonRemovesTheInvitation() {
        QStringList ids;
        const QString invite = AddInvitation({"Mr.|John||Smith||"}, {}, &ids);
        const QString other = AddInvitation({"Ms.|Dee||Clark||"});
        clsCONTACT().Delete(ids[0]);
        QCOMPARE(Scalar("SELECT group_concat(INVITE_ID) FROM INVITE"), other);
        Q_UNUSED(invite);
    }

    void deleteIsAllOrNothing_data() {
        QTest::addColumn<QString>("event");
        QTest::addColumn<QString>("table");
        QTest::addColumn<int>("victim");
        QTest::newRow("relabel fails") << "UPDATE"
                                       << "INVITE" << 0;
        QTest::newRow("primary mark fails") << "UPDATE"
                                            << "CONTACT" << 0;
        QTest::newRow("empty invitation can't go") << "DELETE"
                                                   << "INVITE" << 2;
    }
    void deleteIsAllOrNothing() {
        QFETCH(QString, event);
        QFETCH(QString, table);
        QFETCH(int, victim);
        QStringList ids, lone;
        AddInvitation({"Mr.|John||Smith||", "Mrs.|Mary||Smith||"}, {}, &ids);
        AddInvitation({"Ms.|Ann||Lee||"}, {}, &lone);
        const QString guest = AddContact({{"FIRST_NM", "John's"},
                                          {"MIDDLE_NM", "Guest"},
                                          {"GUEST_OF_ID", ids[0]},
                                          {"INVITE_ID", 1},
                                          {"SORT_ORDER_NB", 3}});
        ids << lone << guest;
        const QStringList contacts = Dump("CONTACT");
        const QStringList invites = Dump("INVITE");
        FailOn(event, table);
        clsCONTACT c;
        c.CascadeDeletedCONTACT_ID = "earlier";
        QVERIFY_THROWS_EXCEPTION(clsDbError, c.Delete(ids[victim]));
        QCOMPARE(Dump("CONTACT"), contacts);
        QCOMPARE(Dump("INVITE"), invites);
        QCOMPARE(c.CascadeDeletedCONTACT_ID, QString("earlier"));
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    // A change of several people is all or nothing; a key that has gone meanwhile is passed over.
    void changeManyIsAllOrNothing() {
        QStringList ids;
        AddInvitation({"Mr.|John||Smith||", "Mrs.|Mary||Smith||", "Ms.|Ann||Lee||"}, {}, &ids);
        const auto side = [](clsCONTACT& c) { c.FRIEND_OF_CD = QStringLiteral("2"); };
        const QStringList contacts = Dump("CONTACT");
        Exec(QStringLiteral("CREATE TRIGGER third_fails BEFORE UPDATE ON CONTACT WHEN OLD.CONTACT_ID = %1 "
                            "BEGIN SELECT RAISE(ABORT, 'refused'); END")
                 .arg(ids[2]));
        QVERIFY_THROWS_EXCEPTION(clsDbError, clsCONTACT::ChangeMany(ids, side, true));
        QCOMPARE(Dump("CONTACT"), contacts);
        Exec("DROP TRIGGER third_fails");
        QCOMPARE(clsCONTACT::ChangeMany({ids[1], "999", ids[0]}, side, true), (QStringList{ids[1], ids[0]}));
        QCOMPARE(Scalar(QStringLiteral(
                            "SELECT group_concat(FRIEND_OF_CD) FROM CONTACT WHERE CONTACT_ID IN (%1, %2)")
                            .arg(ids[0], ids[1])),
                 QStringLiteral("2,2"));
    }

    void personWithGiftsCannotBeDeleted() {
        QStringList ids;
        AddInvitation({"Mr.|John||Smith||", "|John's|Guest||||0"}, {}, &ids);
        Exec("INSERT INTO GIFT (GIFT_ID, EVENT_ID, CONTACT_ID, GIFT_TX, THANK_YOU_SENT_FG) VALUES (1, 1, ?, "
             "'Vase', 'N')",
             {ids[1]});
        const QStringList contacts = Dump("CONTACT");
        // The gift is the guest's: the host can't go either, since the guest goes with them.
        QVERIFY(!RecordIO::Attempt([&] { clsCONTACT().Delete(ids[0]); }));
        QCOMPARE(Dump("CONTACT"), contacts);
        QCOMPARE(db->Messages().Prompts,
                 QStringList({"Unable to delete.  Gift records exist for this contact."}));
    }

    // ---- Deleting a selection ---------------------------------------------------------------------

    // Ann Lee brings a guest (invitation A); John, Mary and Tom Smith share invitation B. The names
    // "a0" to "b2" stand for their keys, other names for themselves.
    void deletingASelection_data() {
        QTest::addColumn<QString>("selection");
        QTest::addColumn<QString>("gone");
        QTest::addColumn<QString>("kept");
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("inviteA");
        QTest::addColumn<QString>("inviteB");
        const char* family = "Smith, John, Mary and Tom";
        QTest::newRow("host, then their guest") << "a0,a1"
                                                << "a0,a1"
                                                << ""
                                                << ""
                                                << "" << family;
        QTest::newRow("guest, then their host") << "a1,a0"
                                                << "a1,a0"
                                                << ""
                                                << ""
                                                << "" << family;
        QTest::newRow("host alone takes the guest") << "a0"
                                                    << "a0,a1"
                                                    << ""
                                                    << ""
                                                    << "" << family;
        QTest::newRow("guest alone") << "a1"
                                     << "a1"
                                     << ""
                                     << ""
                                     << "Lee, Ann" << family;
        QTest::newRow("the primary person") << "b0"
                                            << "b0"
                                            << ""
                                            << ""
                                            << "Lee, Ann and Guest"
                                            << "Smith, Mary and Tom";
        QTest::newRow("the couple stays") << "1,b2,2"
                                          << "b2"
                                          << "1,2"
                                          << ""
                                          << "Lee, Ann and Guest"
                                          << "Smith, John and Mary";
        QTest::newRow("a key named twice") << "b1,b1"
                                           << "b1"
                                           << ""
                                           << ""
                                           << "Lee, Ann and Guest"
                                           << "Smith, John and Tom";
        QTest::newRow("an unknown key") << "99,a0"
                                        << "a0,a1"
                                        << ""
                                        << "99"
                                        << "" << family;
    }
    void deletingASelection() {
        QFETCH(QString, selection);
        QFETCH(QString, gone);
        QFETCH(QString, kept);
        QFETCH(QString, missing);
        QFETCH(QString, inviteA);
        QFETCH(QString, inviteB);
        QStringList a, b;
        const QString idA = AddInvitation({"Ms.|Ann||Lee||", "|Ann's|Guest||||0"}, {}, &a);
        const QString idB =
            AddInvitation({"Mr.|John||Smith||", "Mrs.|Mary||Smith||", "|Tom||Smith||"}, {}, &b);
        for (const QString& id : {idA, idB}) {
            clsINVITE invite;
            QVERIFY(invite.OpenRecord(id, true));
            invite.RefreshLabeling(false, true);
            invite.Save(false);
        }
        const auto keys = [&](const QString& names) {
            QStringList ids;
            for (const QString& name : Split(names))
                ids << (name[0] == 'a'   ? a
                        : name[0] == 'b' ? b
                                         : QStringList())
                           .value(name.mid(1).toInt(), name);
            return ids;
        };
        QList<int> steps;
        int total = 0;
        clsDeleteResult result;
        result = clsCONTACT::DeleteMany(keys(selection), [&](int done, int of) {
            steps << done;
            total = of;
        });
        QCOMPARE(result.Deleted, keys(gone));
        QCOMPARE(result.Kept, keys(kept));
        QCOMPARE(result.Missing, keys(missing));
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE CONTACT_ID IN (" + keys(gone).join(',') + ")"),
                 QString("0"));
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT"), QString::number(7 - Split(gone).size()));
        for (const auto& [inviteId, display] : {std::pair{idA, inviteA}, std::pair{idB, inviteB}}) {
            QCOMPARE(Scalar("SELECT DISPLAY_AS_TX FROM INVITE WHERE INVITE_ID = ?", {inviteId}), display);
            // Whoever is left first on an invitation is its one primary person.
            QCOMPARE(Scalar("SELECT (SELECT PRIMARY_CONTACT_FG FROM CONTACT WHERE INVITE_ID = ? ORDER BY "
                            "SORT_ORDER_NB LIMIT 1) || (SELECT COUNT(*) FROM CONTACT WHERE INVITE_ID = ? AND "
                            "PRIMARY_CONTACT_FG = 'Y')",
                            {inviteId, inviteId}),
                     display.isEmpty() ? QString() : QString("Y1"));
        }
        // The progress runs to its end, one step at a time.
        QVERIFY(total > 0);
        QCOMPARE(steps.size(), total);
        QCOMPARE(steps.last(), total);
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    // Ann Lee (a0) and John Smith's wife Mary (b1) are deleted; Ann's guest goes last, and then John's
    // invitation is relabelled and Ann's, now empty, removed.
    void aFailurePartWayChangesNothing_data() {
        QTest::addColumn<QString>("event");
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("when");
        QTest::addColumn<QString>("message");
        QTest::newRow("the guest, last to go, can't go") << "DELETE"
                                                         << "CONTACT"
                                                         << "OLD.MIDDLE_NM = 'Guest'"
                                                         << "forced failure";
        QTest::newRow("an invitation can't be relabelled") << "UPDATE"
                                                           << "INVITE"
                                                           << ""
                                                           << "forced failure";
        QTest::newRow("the emptied invitation can't go") << "DELETE"
                                                         << "INVITE"
                                                         << ""
                                                         << "forced failure";
        QTest::newRow("the guest has a gift") << ""
                                              << ""
                                              << ""
                                              << "Unable to delete.  Gift records exist for this contact.";
    }
    void aFailurePartWayChangesNothing() {
        QFETCH(QString, event);
        QFETCH(QString, table);
        QFETCH(QString, when);
        QFETCH(QString, message);
        QStringList a, b;
        AddInvitation({"Ms.|Ann||Lee||", "|Ann's|Guest||||0"}, {}, &a);
        AddInvitation({"Mr.|John||Smith||", "Mrs.|Mary||Smith||"}, {}, &b);
        if (event.isEmpty())
            Exec("INSERT INTO GIFT (GIFT_ID, EVENT_ID, CONTACT_ID, GIFT_TX, THANK_YOU_SENT_FG) VALUES (1, 1, "
                 "?, "
                 "'Vase', 'N')",
                 {a[1]});
        else
            FailOn(event, table, when);
        const QStringList contacts = Dump("CONTACT");
        const QStringList invites = Dump("INVITE");
        clsDeleteResult result;
        result.Kept = QStringList{"earlier"};
        QVERIFY(!RecordIO::Attempt([&] { result = clsCONTACT::DeleteMany({a[0], b[1]}); }));
        QCOMPARE(Dump("CONTACT"), contacts);
        QCOMPARE(Dump("INVITE"), invites);
        QCOMPARE(result.Kept, QStringList{"earlier"});
        QCOMPARE(db->Messages().Prompts, QStringList{message});
    }

    // ---- Roles and narrow updates -----------------------------------------------------------------

    void aRoleIsHeldByOnePerson() {
        MakeWedding();
        clsCONTACT::SaveRole("6", "7");
        QCOMPARE(Scalar("SELECT group_concat(CONTACT_ID) FROM CONTACT WHERE ROLE_ID = 7"), QString("6"));
        clsCONTACT::SaveRole("", "7");
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE ROLE_ID = 7"), QString("0"));

        clsCONTACT::SaveRole("8", "7");
        FailOn("UPDATE OF ROLE_ID", "CONTACT", "NEW.ROLE_ID IS NOT NULL");
        QVERIFY(!RecordIO::Attempt([&] { clsCONTACT::SaveRole("3", "7"); }));
        QCOMPARE(Scalar("SELECT group_concat(CONTACT_ID) FROM CONTACT WHERE ROLE_ID = 7"), QString("8"));
    }

    void narrowUpdates_data() {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("check");
        QTest::addColumn<QString>("expected");
        QTest::newRow("table freed") << "table"
                                     << "1"
                                     << "SELECT COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID Is Null"
                                     << "7";
        QTest::newRow("table, empty id") << "table"
                                         << ""
                                         << "SELECT COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID Is Null"
                                         << "6";
        QTest::newRow("flight freed") << "flight"
                                      << "1"
                                      << "SELECT COUNT(*) FROM CONTACT WHERE FLIGHT_ID Is Null"
                                      << "8";
        QTest::newRow("hotel freed") << "hotel"
                                     << "1"
                                     << "SELECT COUNT(*) FROM CONTACT WHERE HOTEL_ID Is Null"
                                     << "8";
        QTest::newRow("attendees of invitation 1") << "attendees"
                                                   << "1"
                                                   << "SELECT group_concat(CONTACT_ID || ATTENDING_FG || "
                                                      "coalesce(MEAL_ID, '-') || coalesce(INVITE_ID, '-')) "
                                                      "FROM CONTACT WHERE CONTACT_ID IN (1, 3, 4, 5)"
                                                   << "1Y2-,3N-1,4N-1,5N-1";
        QTest::newRow("invitation 1 let go") << "invites"
                                             << "1"
                                             << "SELECT group_concat(CONTACT_ID || PRIMARY_CONTACT_FG || "
                                                "coalesce(INVITE_ID, '-')) FROM CONTACT "
                                                "WHERE CONTACT_ID IN (3, 4, 6)"
                                             << "3N-,4N-,6Y2";
        QTest::newRow("guest gets a flight")
            << "updateFlight"
            << "1"
            << "SELECT group_concat(CONTACT_ID) FROM CONTACT WHERE FLIGHT_ID = 1"
            << "3,6";
        QTest::newRow("flight taken away") << "clearFlight"
                                           << ""
                                           << "SELECT COUNT(*) FROM CONTACT WHERE FLIGHT_ID = 1"
                                           << "0";
        QTest::newRow("hotel given") << "updateHotel"
                                     << "1"
                                     << "SELECT group_concat(CONTACT_ID) FROM CONTACT WHERE HOTEL_ID = 1"
                                     << "3,6";
        QTest::newRow("no contact, nothing") << "noContact"
                                             << "1"
                                             << "SELECT COUNT(*) FROM CONTACT WHERE FLIGHT_ID = 1"
                                             << "1";
    }
    void narrowUpdates() {
        QFETCH(QString, operation);
        QFETCH(QString, id);
        QFETCH(QString, check);
        QFETCH(QString, expected);
        MakeWedding();
        bool ok = false;
        if (operation == "table")
            ok = RecordIO::Attempt([&] { clsCONTACT::Update_DINING_TABLE_ID_TO_NULL(id); });
        else if (operation == "flight")
            ok = RecordIO::Attempt([&] { clsCONTACT::Update_FLIGHT_ID_TO_NULL(id); });
        else if (operation == "hotel")
            ok = RecordIO::Attempt([&] { clsCONTACT::Update_HOTEL_ID_TO_NULL(id); });
        else if (operation == "attendees")
            ok = RecordIO::Attempt([&] { clsCONTACT::UpdateAttendeeFieldsToNull(id); });
        else if (operation == "invites")
            ok = RecordIO::Attempt([&] { clsCONTACT::UpdateInvitesToNull(id); });
        else if (operation == "updateFlight")
            ok = RecordIO::Attempt([&] { clsCONTACT::UpdateFlight("6", id); });
        else if (operation == "clearFlight")
            ok = RecordIO::Attempt([&] { clsCONTACT::UpdateFlight("3", id); });
        else if (operation == "updateHotel")
            ok = RecordIO::Attempt([&] { clsCONTACT::UpdateHotel("6", id); });
        else if (operation == "noContact")
            ok = RecordIO::Attempt([&] { clsCONTACT::UpdateFlight("", id); });
        QVERIFY(ok);
        QCOMPARE(Scalar(check), expected);
    }

    void guestsWithoutAnInvitationGo() {
        MakeWedding();
        AddContact({{"FIRST_NM", "Bob's"}, {"MIDDLE_NM", "Guest"}, {"GUEST_OF_ID", 4}});
        const QString kept =
            AddContact({{"FIRST_NM", "Ann's"}, {"MIDDLE_NM", "Guest"}, {"GUEST_OF_ID", 3}, {"INVITE_ID", 1}});
        clsCONTACT::DeleteGuestOfGuestsWithNoInvitation();
        QCOMPARE(Scalar("SELECT group_concat(CONTACT_ID) FROM CONTACT WHERE GUEST_OF_ID Is Not Null"), kept);
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT"), QString("9"));
    }

    void patchOneJoinsTheAddressParts() {
        AddContact({{"ADDRESS_TX", "12 Oak St"},
                    {"CITY_TX", "Boston"},
                    {"STATE_TX", "MA"},
                    {"ZIP_TX", "02101"},
                    {"COUNTRY_TX", "USA"}});
        AddContact({{"ADDRESS_TX", "1 Rue Haute"}, {"CITY_TX", "Lyon"}, {"COUNTRY_TX", "France"}});
        QVERIFY(clsCONTACT::Patch_1_Apply());
        QCOMPARE(Scalar("SELECT ADDRESS_TX FROM CONTACT WHERE CONTACT_ID = 3"),
                 QString("12 Oak St\r\nBoston, MA  02101"));
        QCOMPARE(Scalar("SELECT ADDRESS_TX FROM CONTACT WHERE CONTACT_ID = 4"),
                 QString("1 Rue Haute\r\nLyon France"));
        QCOMPARE(Scalar("SELECT COUNT(*) FROM CONTACT WHERE coalesce(CITY_TX, STATE_TX, ZIP_TX, COUNTRY_TX) "
                        "Is Not Null"),
                 QString("0"));
    }

private:
    static QString Scalar(const QString& sql, const QVariantList& values = {}) {
        return TestDatabase::Scalar(sql, values);
    }
    static void Exec(const QString& sql, const QVariantList& values = {}) { TestDatabase::Exec(sql, values); }
};

QTEST_GUILESS_MAIN(tst_clsCONTACT)
#include "tst_clsCONTACT.moc"
