#include "GuestReportTestData.h"
#include "guests/clsCONTACT.h"
#include "reports/clsReportCatalogue.h"
#include "widgets/clsINVITE_WIDGET.h"
#include "widgets/clsSONG.h"

#include <QtTest>
#include <memory>

using namespace GuestReportTestData;

// The reports of the widgets page, reached through the catalogue's rows as the report screen and the
// command line reach them, read back in both dialects.
class tst_WidgetReports : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    // The report of the Widgets row with that key.
    static Shown WriteRow(int key, bool useRtf) {
        const QList<clsReportCatalogue::FilterRow> rows =
            clsReportCatalogue::FilterRows(clsReportCatalogue::Widgets);
        for (int i = 0; i < rows.size(); ++i)
            if (rows.at(i).Key == key)
                return Write(clsReportCatalogue::Route(clsReportCatalogue::Widgets, rows, i), useRtf);
        Shown none;
        none.Error = QStringLiteral("no row %1").arg(key);
        return none;
    }

private slots:
    void initTestCase() {
        RegisterReportClasses();
        db = std::make_unique<TestDatabase>();
        TestDatabase::Exec("UPDATE CONTACT SET FIRST_NM = 'Emily', LAST_NM = 'Carter' WHERE CONTACT_ID = 1");
        TestDatabase::Exec(
            "UPDATE CONTACT SET FIRST_NM = 'Daniel', LAST_NM = 'Whitaker' WHERE CONTACT_ID = 2");
        gBride().OpenRecord("1");
        gGroom().OpenRecord("2");
        TestDatabase::Exec("UPDATE WORDING SET WORDING_TX = ? WHERE WORDING_ID = 1",
                           {QStringLiteral("\r\nMr. and Mrs. {Carter} \\ \"Łukasik\"\r\nrequest")});
        TestDatabase::Exec("UPDATE WORDING SET WORDING_TX = 'I, Emily' WHERE WORDING_ID = 2");
        TestDatabase::Exec("UPDATE WORDING SET WORDING_TX = 'I, Daniel' WHERE WORDING_ID = 3");
        TestDatabase::Exec(
            "INSERT INTO EVENT (EVENT_ID, EVENT_TX, EVENT_DT) VALUES (4, 'Bridal Shower', '2027-05-01')");
        TestDatabase::Exec("INSERT INTO INVITE (INVITE_ID, INVITE_RSVP_ID, DISPLAY_AS_TX, OUTER_ENVELOPE_TX) "
                           "VALUES (1, 1, 'Smith, John and Mary', 'Mr. and Mrs. John Smith')");
        TestDatabase::Exec(
            "INSERT INTO CONTACT (CONTACT_ID, TITLE_TX, FIRST_NM, LAST_NM, ADDRESS_TX, PHONE_TX, "
            "INVITE_ID, PRIMARY_CONTACT_FG, SORT_ORDER_NB, ROLE_ID) VALUES "
            "(3, 'Mr.', 'John', 'Smith', '1 Elm St' || char(13, 10) || 'Salem, MA', '555-0100', 1, "
            "'Y', 1, 18), (4, 'Mrs.', 'Mary', 'Smith', NULL, NULL, 1, 'N', 2, 18), "
            "(5, 'Ms.', 'Ann', 'Young', NULL, '555-0199', NULL, 'N', 1, 18)");
        clsINVITE_WIDGET::Invite("4", {"INVITE1", "CONTACT5"});
        const QString ceremony =
            TestDatabase::Scalar("SELECT SONGLIST_ID FROM SONGLIST_DICT WHERE SONGLIST_TX = 'Ceremony'");
        const QString reception =
            TestDatabase::Scalar("SELECT SONGLIST_ID FROM SONGLIST_DICT WHERE SONGLIST_TX = 'Reception'");
        clsSONG::AddSongs({"/m/Canon & Gigue.mp3"}, ceremony);
        clsSONG::AddSongs({"/m/First Dance.mp3", "/m/Last Dance.mp3"}, reception);
    }
    void cleanupTestCase() { db.reset(); }

    void catalogueRowsAreAvailable() {
        const QList<clsReportCatalogue::FilterRow> rows =
            clsReportCatalogue::FilterRows(clsReportCatalogue::Widgets);
        QCOMPARE(rows.size(), 6);
        for (const clsReportCatalogue::FilterRow& row : rows)
            QVERIFY2(row.Available, qPrintable(row.FILTER));
        QCOMPARE(rows.last().FILTER, QStringLiteral("Bridal Shower"));
    }

    // The saved text, line breaks and all, in one centred cell; the markup of the user's text stays text.
    void invitationWordingIsTheSavedRow() {
        const Shown rtf = WriteRow(1, true);
        QVERIFY2(rtf.Error.isEmpty(), qPrintable(rtf.Error));
        QVERIFY(QFileInfo(rtf.File).fileName().startsWith("11_InvitationWording_"));
        QCOMPARE(rtf.Rows.size(), 1);
        QCOMPARE(rtf.Rows.first().first(),
                 QStringLiteral("\r\nMr. and Mrs. {Carter} \\ \"Łukasik\"\r\nrequest"));
        QVERIFY(rtf.RowLines.first().contains("\\qc"));
    }

    void vows_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QList<QStringList>>("rows");
        QTest::newRow("side by side")
            << 2 << "All Wedding Vows"
            << QList<QStringList>{{"Emily's", "Daniel's"}, {"I, Emily", "I, Daniel"}};
        QTest::newRow("the bride's") << 3 << "Emily's Wedding Vows"
                                     << QList<QStringList>{{"Emily's"}, {"I, Emily"}};
        QTest::newRow("the groom's") << 4 << "Daniel's Wedding Vows"
                                     << QList<QStringList>{{"Daniel's"}, {"I, Daniel"}};
    }
    void vows() {
        QFETCH(int, key);
        QFETCH(QString, title);
        QFETCH(QList<QStringList>, rows);
        const Shown rtf = WriteRow(key, true);
        QVERIFY(QFileInfo(rtf.File).fileName().startsWith("11_WeddingVows_"));
        QVERIFY(rtf.Text.contains(title));
        QCOMPARE(rtf.Rows, rows);
        QCOMPARE(WriteRow(key, false).Rows, rows);
    }

    void songsAreGroupedByList() {
        const Shown csv = WriteRow(5, false);
        QVERIFY2(csv.Error.isEmpty(), qPrintable(csv.Error));
        QCOMPARE(csv.Rows, (QList<QStringList>{{"#", "Song"},
                                               {"Ceremony"},
                                               {"1", "Canon & Gigue.mp3"},
                                               {"Reception"},
                                               {"2", "First Dance.mp3"},
                                               {"3", "Last Dance.mp3"}}));
        QVERIFY(WriteRow(5, true).Text.contains("Total Songs: 3"));
    }

    // An event's list for its hosts: named after the event, with the two boxes left empty.
    void invitesForAnEvent() {
        const Shown rtf = WriteRow(4 + 99, true);
        QVERIFY2(rtf.Error.isEmpty(), qPrintable(rtf.Error));
        QVERIFY(QFileInfo(rtf.File).fileName().startsWith("11_Invites_for_Bridal_Shower_"));
        QVERIFY(rtf.Text.contains("Emily and Daniel's Bridal Shower"));
        QVERIFY(rtf.Text.contains("Total Records: 2 Invitations, 3 Invited Contacts"));
        QCOMPARE(rtf.Rows,
                 (QList<QStringList>{{"Name", "Address", "Phone/E-mail", "Attending?", "Gift"},
                                     {"Smith, John and Mary", "1 Elm St\r\nSalem, MA", "555-0100", "", ""},
                                     {"Ms. Ann Young", "", "555-0199", "", ""}}));
    }
};

QTEST_GUILESS_MAIN(tst_WidgetReports)
#include "tst_WidgetReports.moc"
