#include "TestDatabase.h"
#include "guests/GuestTestData.h"
#include "guests/clsCONTACT.h"
#include "guests/clsContactImport.h"
#include "guests/clsINVITE.h"

#include <QtTest>
#include <memory>

namespace {

// A CSV file's rows as the preview holds them under the suggested mapping.
QList<clsImportRow> PreviewOf(const QStringList& header, const QList<QStringList>& rows) {
    clsImportTable table;
    table.Headers = header;
    table.Rows = rows;
    for (qsizetype i = 0; i < rows.size(); ++i)
        table.Lines << static_cast<int>(i + 2);
    QList<clsImportRow> preview =
        clsContactImport::Preview(table, clsContactImport::SuggestedMapping(table.Headers));
    clsContactImport::MarkDuplicates(preview);
    return preview;
}

clsImportResult ImportRows(const QStringList& header, const QList<QStringList>& rows,
                           const clsImportOptions& options = {}) {
    return clsContactImport::Import(PreviewOf(header, rows), options);
}

QString Count(const QString& sql) {
    return TestDatabase::Scalar(sql);
}

clsCONTACT LastContact() {
    clsCONTACT contact;
    contact.OpenRecord(Count(QStringLiteral("SELECT Max(CONTACT_ID) FROM CONTACT")));
    return contact;
}

} // namespace

class tst_clsContactImport : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    // The header lines of the address books' exports, with one person each, map without a hand.
    void realExports_data() {
        QTest::addColumn<QStringList>("header");
        QTest::addColumn<QStringList>("row");
        QTest::addColumn<QStringList>(
            "expected"); // title, first, middle, last, e-mail, phone, phone 2, address

        const QStringList person = {"Mr.",         "John",  "Q",     "Smith",
                                    "j@x.example", "555-1", "555-2", "12 Oak St\r\nSalem, MA  01970"};
        QTest::newRow("Google") << QStringList{"First Name",
                                               "Middle Name",
                                               "Last Name",
                                               "Name Prefix",
                                               "Name Suffix",
                                               "Nickname",
                                               "E-mail 1 - Type",
                                               "E-mail 1 - Value",
                                               "Phone 1 - Type",
                                               "Phone 1 - Value",
                                               "Phone 2 - Value",
                                               "Address 1 - Street",
                                               "Address 1 - City",
                                               "Address 1 - Region",
                                               "Address 1 - Postal Code",
                                               "Address 1 - Country",
                                               "Notes"}
                                << QStringList{"John",   "Q",
                                               "Smith",  "Mr.",
                                               "",       "",
                                               "* Home", "j@x.example ::: j2@x.example",
                                               "Mobile", "555-1 ::: 555-9",
                                               "555-2",  "12 Oak St",
                                               "Salem",  "MA",
                                               "01970",  "United States",
                                               "a ::: b"}
                                << person;
        QTest::newRow("Google, older")
            << QStringList{"Name",
                           "Given Name",
                           "Additional Name",
                           "Family Name",
                           "Name Prefix",
                           "E-mail 1 - Value",
                           "Phone 1 - Value",
                           "Phone 2 - Value",
                           "Address 1 - Street",
                           "Address 1 - City",
                           "Address 1 - Region",
                           "Address 1 - Postal Code"}
            << QStringList{"John Q Smith", "John",  "Q",         "Smith", "Mr.", "j@x.example",
                           "555-1",        "555-2", "12 Oak St", "Salem", "MA",  "01970"}
            << person;
        QTest::newRow("Outlook") << QStringList{"Title",
                                                "First Name",
                                                "Middle Name",
                                                "Last Name",
                                                "Suffix",
                                                "Home Street",
                                                "Home City",
                                                "Home State",
                                                "Home Postal Code",
                                                "Home Country/Region",
                                                "E-mail Address",
                                                "Home Phone",
                                                "Mobile Phone",
                                                "Notes"}
                                 << QStringList{"Mr.",         "John",  "Q",     "Smith", "",
                                                "12 Oak St",   "Salem", "MA",    "01970", "USA",
                                                "j@x.example", "555-1", "555-2", ""}
                                 << person;
        QTest::newRow("Thunderbird")
            << QStringList{"First Name",      "Last Name",  "Display Name", "Nickname",      "Primary Email",
                           "Secondary Email", "Work Phone", "Home Phone",   "Mobile Number", "Home Address",
                           "Home Address 2",  "Home City",  "Home State",   "Home ZipCode",  "Home Country"}
            << QStringList{"John", "Smith", "John Smith", "",      "j@x.example",
                           "",     "555-0", "555-1",      "555-2", "12 Oak St",
                           "",     "Salem", "MA",         "01970", ""}
            << QStringList{
                   "", "John", "", "Smith", "j@x.example", "555-1", "555-2", "12 Oak St\r\nSalem, MA  01970"};
        QTest::newRow("a spreadsheet's own words")
            << QStringList{"Prefix", "First name", "Middle", "Surname", "Email",      "Phone",
                           "Mobile", "Street",     "City",   "State",   "Postal code"}
            << QStringList{"Mr.",   "John",      "Q",     "Smith", "j@x.example", "555-1",
                           "555-2", "12 Oak St", "Salem", "MA",    "01970"}
            << person;
        QTest::newRow("the template's captions")
            << QStringList{"Title", "First Name *", "Middle Name", "Last Name *", "Address", "City",
                           "State", "Zip",          "E-mail",      "Phone",       "Phone 2"}
            << QStringList{"Mr.", "John",  "Q",           "Smith", "12 Oak St", "Salem",
                           "MA",  "01970", "j@x.example", "555-1", "555-2"}
            << person;
    }
    void realExports() {
        QFETCH(QStringList, header);
        QFETCH(QStringList, row);
        QFETCH(QStringList, expected);
        const clsImportResult result = ImportRows(header, {row});
        QCOMPARE(result.Added, 1);
        const clsCONTACT c = LastContact();
        QCOMPARE((QStringList{c.TITLE_TX, c.FIRST_NM, c.MIDDLE_NM, c.LAST_NM, c.EMAIL_TX, c.PHONE_TX,
                              c.PHONE2_TX, c.ADDRESS_TX}),
                 expected);
    }

    void aFieldIsTakenByTheFirstColumnThatSuggestsIt() {
        const QList<clsIMPORT_FIELD> mapping =
            clsContactImport::SuggestedMapping({"Home Phone", "Phone", "ZIPCODE", "Zip Code"});
        QCOMPARE(mapping.at(0).MAP_IMPORT_FIELD_NM, QStringLiteral("PHONE_TX"));
        QCOMPARE(mapping.at(1).MAP_IMPORT_FIELD_NM, QString());
        QCOMPARE(mapping.at(2).MAP_IMPORT_FIELD_NM, QString());
        QCOMPARE(mapping.at(3).MAP_IMPORT_FIELD_NM, QStringLiteral("ZIP_TX"));
    }

    void valuesAsStored_data() {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("fiveDigits");
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("stored");
        const QString zip = QStringLiteral("SELECT ADDRESS_TX FROM CONTACT WHERE FIRST_NM = 'Ann'");
        QTest::newRow("zip padded") << "Zip"
                                    << "1234" << true << zip << "01234";
        QTest::newRow("zip as it stands without the option") << "Zip"
                                                             << "1234" << false << zip << "1234";
        QTest::newRow("zip plus four untouched") << "Zip"
                                                 << "2101-1234" << true << zip << "2101-1234";
        QTest::newRow("postcode with letters untouched") << "Zip"
                                                         << "SW1A 1AA" << true << zip << "SW1A 1AA";
        const QString ab = QStringLiteral("SELECT AB_LIST_CD FROM CONTACT WHERE FIRST_NM = 'Ann'");
        QTest::newRow("B list stays") << "A-B"
                                      << "b" << false << ab << "B";
        QTest::newRow("other list text is A") << "A-B"
                                              << "maybe" << false << ab << "A";
        QTest::newRow("no list is A") << "A-B"
                                      << "" << false << ab << "A";
        const QString side = QStringLiteral("SELECT FRIEND_OF_CD FROM CONTACT WHERE FIRST_NM = 'Ann'");
        QTest::newRow("friend of the bride") << "Friend Of"
                                             << "Bride" << false << side << "1";
        QTest::newRow("friend of the groom") << "Friend Of"
                                             << "groom's side" << false << side << "2";
        QTest::newRow("friend of both") << "Friend Of"
                                        << "BOTH" << false << side << "3";
        QTest::newRow("friend of nobody known") << "Friend Of"
                                                << "neighbour" << false << side << "";
        const QString child =
            QStringLiteral("SELECT CHILD_FG || GENDER_FG FROM CONTACT WHERE FIRST_NM = 'Ann'");
        QTest::newRow("child yes") << "Child"
                                   << "Yes" << false << child << "YM";
        QTest::newRow("child other") << "Child"
                                     << "no" << false << child << "NM";
        QTest::newRow("gender female") << "Gender"
                                       << "female" << false << child << "NF";
    }
    void valuesAsStored() {
        QFETCH(QString, column);
        QFETCH(QString, value);
        QFETCH(bool, fiveDigits);
        QFETCH(QString, sql);
        clsImportOptions options;
        options.FiveDigitZip = fiveDigits;
        ImportRows({"First", column}, {{"Ann", value}}, options);
        QTEST(Count(sql), "stored");
    }

    void aRowWithoutNamesIsUnknown() {
        ImportRows({"First", "Last", "Email"}, {{"", "", "who@x.example"}});
        const clsCONTACT c = LastContact();
        QCOMPARE(c.FIRST_NM, QStringLiteral("UNKNOWN"));
        QCOMPARE(c.LAST_NM, QStringLiteral("(UNKNOWN)"));
        // The same row again is a duplicate of the contact it made.
        QVERIFY(!PreviewOf({"First", "Last", "Email"}, {{"", "", "who@x.example"}})
                     .first()
                     .DuplicateOf.isEmpty());
    }

    void aRepeatedImport_data() {
        QTest::addColumn<bool>("replace");
        QTest::addColumn<QString>("contacts");
        QTest::addColumn<QString>("phones");
        QTest::newRow("allow duplicates") << false << "4"
                                          << "555-1,555-2,555-9";
        QTest::newRow("replace duplicates") << true << "2"
                                            << "555-9,555-2";
    }
    void aRepeatedImport() {
        QFETCH(bool, replace);
        QFETCH(QString, contacts);
        const QString before = Count(QStringLiteral("SELECT COUNT(*) FROM CONTACT"));
        const QStringList header = {"First", "Last", "Email", "Phone"};
        ImportRows(header, {{"Ann", "Lee", "ann@x.example", "555-1"}, {"Bo", "Li", "bo@x.example", "555-2"}});
        clsImportOptions options;
        options.ReplaceDuplicates = replace;
        const clsImportResult again = ImportRows(
            header, {{"Ann", "Lee", "ann@x.example", "555-9"}, {"Bo", "Li", "bo@x.example", ""}}, options);
        QCOMPARE(again.Replaced, replace ? 2 : 0);
        QCOMPARE(again.Added, replace ? 0 : 2);
        QCOMPARE(
            QString::number(Count(QStringLiteral("SELECT COUNT(*) FROM CONTACT")).toInt() - before.toInt()),
            contacts);
        QTEST(Count(QStringLiteral("SELECT group_concat(PHONE_TX) FROM (SELECT PHONE_TX FROM CONTACT WHERE "
                                   "EMAIL_TX IS NOT NULL ORDER BY CONTACT_ID)")),
              "phones");
    }

    void rsvpIdsMakeInvitationsWithThePrimaryFirst() {
        const clsImportResult result = ImportRows({"Title", "First", "Last", "Address", "RSVP ID"},
                                                  {{"Mr.", "John", "Smith", "12 Oak St", "7"},
                                                   {"Mrs.", "Mary", "Smith", "", "7"},
                                                   {"", "Ann", "Lee", "", ""},
                                                   {"Herr", "Karl", "Braun", "", "8"},
                                                   {"Frau", "Eva", "Braun", "", "8"},
                                                   {"Ms.", "Cy", "Wu", "", "7"}});
        QCOMPARE(result.Added, 6);
        QCOMPARE(result.Invitations, 3); // 7, 8, and 7 again: only consecutive rows share one
        clsINVITE brauns;
        QVERIFY(brauns.OpenRecordByRSVP_ID(QStringLiteral("8"), true));
        QCOMPARE(brauns.OUTER_ENVELOPE_TX, QStringLiteral("Herr und Frau Karl Braun"));
        QCOMPARE(brauns.GUESTS.first().FIRST_NM, QStringLiteral("Karl"));
        QCOMPARE(brauns.GUESTS.first().PRIMARY_CONTACT_FG, QStringLiteral("Y"));
        QCOMPARE(brauns.GUESTS.last().PRIMARY_CONTACT_FG, QStringLiteral("N"));
        // The later group of 7 took the invitation over; the Smiths are left without one.
        QCOMPARE(Count(QStringLiteral("SELECT DISPLAY_AS_TX FROM INVITE WHERE INVITE_RSVP_ID = '7'")),
                 QStringLiteral("Wu, Cy"));
        QCOMPARE(Count(QStringLiteral(
                     "SELECT COUNT(*) FROM CONTACT WHERE LAST_NM = 'Smith' AND INVITE_ID IS NULL")),
                 QStringLiteral("2"));
        QCOMPARE(Count(QStringLiteral("SELECT COUNT(*) FROM INVITE")), QStringLiteral("2"));
    }

    // A person who moves to another invitation leaves the old one labelled for who is left, or gone when
    // nobody is.
    void theInvitationsPeopleLeaveFollow() {
        const QStringList header = {"Title", "First", "Last", "Email", "RSVP"};
        ImportRows(header, {{"Mr.", "John", "Smith", "j@x.example", "1"},
                            {"Mrs.", "Mary", "Smith", "m@x.example", "1"},
                            {"", "Ann", "Lee", "a@x.example", "2"}});
        clsImportOptions replace;
        replace.ReplaceDuplicates = true;
        const clsImportResult again = ImportRows(
            header, {{"Mrs.", "Mary", "Smith", "m@x.example", "5"}, {"", "Ann", "Lee", "a@x.example", "5"}},
            replace);
        QCOMPARE(again.Replaced, 2);
        QCOMPARE(Count(QStringLiteral("SELECT DISPLAY_AS_TX FROM INVITE WHERE INVITE_RSVP_ID = '1'")),
                 QStringLiteral("Smith, John"));
        QCOMPARE(Count(QStringLiteral("SELECT COUNT(*) FROM INVITE WHERE INVITE_RSVP_ID = '2'")),
                 QStringLiteral("0"));
        QCOMPARE(Count(QStringLiteral("SELECT DISPLAY_AS_TX FROM INVITE WHERE INVITE_RSVP_ID = '5'")),
                 QStringLiteral("Smith, Mary & Ann Lee"));
        QCOMPARE(Count(QStringLiteral("SELECT PRIMARY_CONTACT_FG FROM CONTACT WHERE FIRST_NM = 'Mary'")),
                 QStringLiteral("Y"));
    }

    void aCoupleIsLabelledByEtiquette() {
        ImportRows({"Title", "First", "Last", "Address", "City", "State", "Zip", "RSVP"},
                   {{"Mr.", "John", "Smith", "12 Oak St", "Salem", "MA", "1970", "3"},
                    {"Mrs.", "Mary", "Smith", "", "", "", "", "3"}},
                   clsImportOptions{false, true});
        clsINVITE invite;
        QVERIFY(invite.OpenRecordByRSVP_ID(QStringLiteral("3"), true));
        QCOMPARE(invite.DISPLAY_AS_TX, QStringLiteral("Smith, John and Mary"));
        QCOMPARE(invite.OUTER_ENVELOPE_TX, QStringLiteral("Mr. and Mrs. John Smith"));
        QCOMPARE(invite.OUTER_ENVELOPE_ADDRESS_TX, QStringLiteral("12 Oak St\r\nSalem, MA  01970"));
    }

    void aStoppedImportLeavesNothing() {
        const QString contacts = Count(QStringLiteral("SELECT COUNT(*) FROM CONTACT"));
        const QList<clsImportRow> rows =
            PreviewOf({"First", "Last", "RSVP"}, {{"Ann", "Lee", "1"}, {"Bo", "Lee", "1"}, {"Cy", "Wu", ""}});
        const clsImportResult result =
            clsContactImport::Import(rows, {}, [](int done, int) { return done < 3; });
        QVERIFY(result.Stopped);
        QCOMPARE(Count(QStringLiteral("SELECT COUNT(*) FROM CONTACT")), contacts);
        QCOMPARE(Count(QStringLiteral("SELECT COUNT(*) FROM INVITE")), QStringLiteral("0"));
    }

    void untickedRowsAreLeftOut() {
        QList<clsImportRow> rows = PreviewOf({"First", "Last"}, {{"Ann", "Lee"}, {"Bo", "Li"}});
        rows[0].Ticked = false;
        const clsImportResult result = clsContactImport::Import(rows, {});
        QCOMPARE(result.LeftOut, 1);
        QCOMPARE(result.Added, 1);
        QCOMPARE(LastContact().FIRST_NM, QStringLiteral("Bo"));
    }

    void aColumnMappedByHand() {
        QList<clsIMPORT_FIELD> mapping = clsContactImport::SuggestedMapping({"Given", "Phone", "Cell"});
        clsContactImport::MapColumn(mapping, QStringLiteral("given"), QStringLiteral("FIRST_NM"));
        clsContactImport::MapColumn(mapping, QStringLiteral("Cell"), QStringLiteral("PHONE_TX"));
        QCOMPARE(mapping.at(0).MAP_IMPORT_FIELD_NM, QStringLiteral("FIRST_NM"));
        QCOMPARE(mapping.at(1).MAP_IMPORT_FIELD_NM, QString());
        QCOMPARE(mapping.at(2).MAP_IMPORT_FIELD_NM, QStringLiteral("PHONE_TX"));
        QVERIFY(
            ErrorOf([&] { clsContactImport::MapColumn(mapping, "Fax", "PHONE_TX"); }).contains("no column"));
        QVERIFY(ErrorOf([&] { clsContactImport::MapColumn(mapping, "Cell", "FAX_TX"); }).contains("FAX_TX"));
        clsContactImport::SaveMapping(mapping);
        QCOMPARE(clsIMPORT_FIELD::GetIMPORT_FIELD_NM("PHONE_TX"), QStringLiteral("Cell"));
        QCOMPARE(clsIMPORT_FIELD::OpenRecords(true).size(), 2);
    }
};

QTEST_GUILESS_MAIN(tst_clsContactImport)
#include "tst_clsContactImport.moc"
