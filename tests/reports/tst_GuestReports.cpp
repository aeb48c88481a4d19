#include "GuestReportTestData.h"
#include "core/modGeneral.h"
#include "reports/clsReportCatalogue.h"
#include "reports/clsReportClasses.h"

#include <QtTest>
#include <memory>

using namespace GuestReportTestData;

// The guest reports written through the registry from a small wedding, read back as a reader sees
// them: titles, statistics lines, header rows per orientation, the rows of both dialects, styles.
class tst_GuestReports : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    // The reports only read: one wedding serves every test.
    void initTestCase() {
        RegisterReportClasses();
        db = std::make_unique<TestDatabase>();
        MakeSmallWedding();
        SetNowForTesting(QDateTime(QDate(2027, 5, 1), QTime(9, 30)));
    }
    void cleanupTestCase() {
        SetNowForTesting({});
        db.reset();
    }

    void catalogueOffersTheGuestReports() {
        for (const int section :
             {clsReportCatalogue::Contacts, clsReportCatalogue::Invitations, clsReportCatalogue::RSVPs,
              clsReportCatalogue::Attendees, clsReportCatalogue::Tables, clsReportCatalogue::Tentcards,
              clsReportCatalogue::Statistics}) {
            for (const clsReportCatalogue::FilterRow& row : clsReportCatalogue::FilterRows(section)) {
                if (row.ClassName.startsWith(QLatin1String("clsRTF")))
                    QVERIFY2(row.Available, qPrintable(row.ClassName + " " + row.FILTER));
            }
        }
    }

    void titleAndStatistics_data() {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("filterText");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QStringList>("statistics");
        QTest::newRow("contacts") << "clsRTFContacts" << 0 << "All"
                                  << "All Contacts" << QStringList{"Total Records: 8"};
        QTest::newRow("contacts of the bride")
            << "clsRTFContacts" << 1 << "Friend of Bride"
            << "Friend of Bride Contacts" << QStringList{"Total Records: 2"};
        QTest::newRow("invitations")
            << "clsRTFInvitation" << 0 << "All"
            << "All Invitations"
            << QStringList{
                   "Total Records: 3\r\n* Be sure to check for spelling, capitalization, and abbreviations"};
        QTest::newRow("rsvps waiting") << "clsRTFRSVP" << 4 << "No Reply"
                                       << "No Reply RSVPs" << QStringList{"Total Records: 1"};
        QTest::newRow("meals")
            << "clsRTFMeal" << 0 << ""
            << "Meals"
            << QStringList{"Total Attendees: 4,  Total Specified Meals: 3,  Total Unspecified Meals: 1"};
        QTest::newRow("seating chart") << "clsRTFTable" << 0 << ""
                                       << "Seating Chart" << QStringList{"2 Tables, 3 seated attendees"};
    }
    void titleAndStatistics() {
        QFETCH(QString, className);
        QFETCH(int, filter);
        QFETCH(QString, filterText);
        QFETCH(QString, title);
        QFETCH(QStringList, statistics);
        const Shown rtf = Write(Route(className, filter, filterText), true);
        QVERIFY2(rtf.Error.isEmpty(), qPrintable(rtf.Error));
        QVERIFY2(rtf.Text.contains(title + "\r\n"), qPrintable(rtf.Text.right(400)));
        for (const QString& line : statistics)
            QVERIFY2(rtf.Text.contains(line + "\r\n"), qPrintable(line + "\n" + rtf.Text.right(300)));
        // The CSV file is the table alone: its first record is the header row.
        const Shown csv = Write(Route(className, filter, filterText), false);
        QVERIFY2(csv.Error.isEmpty(), qPrintable(csv.Error));
        QVERIFY(!csv.Rows.isEmpty());
        QVERIFY(!csv.Rows.contains(QStringList{title}));
    }

    void headerRows_data() {
        QTest::addColumn<QString>("className");
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<bool>("a4");
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<QList<int>>("edges");
        QTest::newRow("contacts L") << "clsRTFContacts" << true << false
                                    << QStringList{"Title",     "Name",     "Address", "Phone/E-mail",
                                                   "Friend of", "Guest of", "A-B"}
                                    << QList<int>{650, 3400, 6500, 9800, 11000, 13100, 13680};
        QTest::newRow("contacts P") << "clsRTFContacts" << false << true
                                    << QStringList{"Title", "Name", "Phone/E-mail", "Friend of", "A-B"}
                                    << QList<int>{650, 4500, 8000, 9200, 9749};
    }
    void headerRows() {
        QFETCH(QString, className);
        QFETCH(bool, landscape);
        QFETCH(bool, a4);
        QFETCH(QStringList, captions);
        QFETCH(QList<int>, edges);
        const Shown rtf = Write(Route(className), true, landscape, a4);
        QVERIFY(!rtf.Rows.isEmpty());
        QCOMPARE(rtf.Rows.first(), captions);
        QCOMPARE(rtf.RowEdges.first(), edges);
        // A repeating header row, boxed, in the header colour, bold.
        QVERIFY(rtf.RowLines.first().contains("\\b "));
        QVERIFY(rtf.RowEdges.size() > 1);
    }

    void csvHeaders_data() {
        QTest::addColumn<QString>("className");
        QTest::addColumn<QStringList>("captions");
        QTest::newRow("contacts") << "clsRTFContacts"
                                  << QStringList{"Title",  "First Name", "Middle Name", "Last Name",
                                                 "Suffix", "Address",    "City",        "State",
                                                 "Zip",    "Country",    "Nickname",    "E-mail",
                                                 "Phone",  "Phone 2",    "A-B",         "Friend Of",
                                                 "Role",   "Gender",     "Child",       "Out of Towner",
                                                 "Notes",  "FullAddress"};
        QTest::newRow("tabula rasa") << "clsRTFAttendeesTabulaRasa"
                                     << QStringList{"Title",  "First",    "Middle", "Last",
                                                    "Suffix", "Nickname", "Gender", "IsChild",
                                                    "Meal",   "Notes",    "GroupID"};
    }
    void csvHeaders() {
        QFETCH(QString, className);
        QFETCH(QStringList, captions);
        const Shown csv = Write(Route(className, className == "clsRTFAttendees" ? 14 : 0), false);
        QVERIFY2(csv.Error.isEmpty(), qPrintable(csv.Error));
        QCOMPARE(csv.Rows.first(), captions);
        for (const QStringList& row : csv.Rows)
            QCOMPARE(row.size(), captions.size());
    }

    // Rows as the reader sees them, in RTF (landscape) and in CSV.
    void rows_data() {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("filter");
        QTest::addColumn<bool>("useRtf");
        QTest::addColumn<QStringList>("row");
        const QString zoeList = NastyLast() + ", Zoë";
        QTest::newRow("contact") << "clsRTFContacts" << 0 << true
                                 << QStringList{"Ms.",
                                                zoeList,
                                                "12 Oak St\r\nBoston, MA 02101",
                                                "555-0101\r\nzoe@example.com",
                                                "Bride",
                                                "",
                                                "A"};
        QTest::newRow("contact, guest of") << "clsRTFContacts" << 0 << true
                                           << QStringList{"", "Guest", "", "", "", "Zoë " + NastyLast(), ""};
        QTest::newRow("contact csv") << "clsRTFContacts" << 0 << false
                                     << QStringList{"Ms.",
                                                    "Zoë",
                                                    "",
                                                    NastyLast(),
                                                    "",
                                                    "12 Oak St",
                                                    "Boston",
                                                    "MA",
                                                    "02101",
                                                    "",
                                                    "",
                                                    "zoe@example.com",
                                                    "555-0101",
                                                    "",
                                                    "A",
                                                    "Bride",
                                                    "Reader",
                                                    "Female",
                                                    "No",
                                                    "No",
                                                    "Vegan cousin",
                                                    "12 Oak St\r\nBoston, MA 02101"};
        QTest::newRow("invitation") << "clsRTFInvitation" << 0 << true
                                    << QStringList{"Yes",
                                                   "1",
                                                   NastyLast() + ", Zoë and Guest",
                                                   "Ms. " + Nasty() + "\r\n12 Oak St\r\nBoston, MA 02101",
                                                   "Zoë and Guest",
                                                   "2"};
        QTest::newRow("invitation csv") << "clsRTFInvitation" << 0 << false
                                        << QStringList{"Yes",
                                                       "1",
                                                       NastyLast() + ", Zoë and Guest",
                                                       "Ms. " + Nasty(),
                                                       "Zoë and Guest",
                                                       "2",
                                                       "Ms. " + Nasty(),
                                                       "12 Oak St",
                                                       "Boston, MA 02101",
                                                       "",
                                                       "",
                                                       "",
                                                       ""};
        QTest::newRow("invitations total")
            << "clsRTFInvitation" << 0 << true << QStringList{"", "", "Total", "", "", "5"};
        QTest::newRow("rsvp answered")
            << "clsRTFRSVP" << 1 << true
            << QStringList{"Yes", "1", "Ms. " + Nasty(), "555-0101\r\nzoe@example.com", "2 / 2"};
        QTest::newRow("rsvp declined") << "clsRTFRSVP" << 1 << false
                                       << QStringList{"Yes", "2", "Mr. and Mrs. Carl Decliner", "", "0 / 2"};
        QTest::newRow("rsvp waiting")
            << "clsRTFRSVP" << 1 << true << QStringList{"", "3", "Ms. Eve Waiting", "", "No reply"};
        QTest::newRow("rsvp total") << "clsRTFRSVP" << 1 << true << QStringList{"Total", "", "", "", "2 / 4"};
        QTest::newRow("rsvp summary") << "clsRTFRSVP" << 1 << false << QStringList{"2 of 3  RSVPs received"};
        QTest::newRow("attendee") << "clsRTFAttendees" << 14 << true
                                  << QStringList{"1", zoeList + "\r\n(Vegan cousin)", "Fish", "1",
                                                 "Head Table"};
        QTest::newRow("attendee csv")
            << "clsRTFAttendees" << 14 << false
            << QStringList{"1",  "Ms.",  "Zoë", "",           NastyLast(),    "", "", "Female",
                           "No", "Fish", "1",   "Head Table", "Vegan cousin", "1"};
        QTest::newRow("bride attends") << "clsRTFAttendees" << 14 << true
                                       << QStringList{"", "Smith, Anna Lee", "Beef", "1", "Head Table"};
        QTest::newRow("tabula rasa") << "clsRTFAttendeesTabulaRasa" << 0 << false
                                     << QStringList{"Ms.",    "Zoë", "",     NastyLast(),    "", "",
                                                    "Female", "No",  "Fish", "Vegan cousin", "1"};
        QTest::newRow("meal") << "clsRTFMeal" << 0 << true << QStringList{"Fish", "2", "$42.50", "$85.00"};
        QTest::newRow("meal unpriced")
            << "clsRTFMeal" << 0 << false << QStringList{"Beef", "1", "$0.00", "$0.00"};
        QTest::newRow("meal none chosen")
            << "clsRTFMeal" << 0 << true << QStringList{"Vegan", "0", "$0.00", "$0.00"};
        QTest::newRow("meals total") << "clsRTFMeal" << 0 << true << QStringList{"Total", "3", "", "$85.00"};
        QTest::newRow("meals unspecified")
            << "clsRTFMeal" << 0 << false << QStringList{"Unspecified", "1", "", ""};
        QTest::newRow("vendor meals")
            << "clsRTFMeal" << 0 << true << QStringList{"* Vendor meals", "", "", ""};
        QTest::newRow("vendor note") << "clsRTFMeal" << 0 << false
                                     << QStringList{
                                            "* Consider whether you will be providing meals for vendors."};
        QTest::newRow("role") << "clsRTFRole" << 0 << true << QStringList{"Reader", "Ms. " + Nasty(), ""};
        QTest::newRow("table") << "clsRTFTableLayout" << 0 << true
                               << QStringList{"1", "Head Table", "8", "6"};
        QTest::newRow("table csv") << "clsRTFTableLayout" << 0 << false << QStringList{"2", "", "8", "7"};
        QTest::newRow("tent card") << "clsRTFTentcard" << 0 << true
                                   << QStringList{Nasty(), "1", "Head Table"};
    }
    void rows() {
        QFETCH(QString, className);
        QFETCH(int, filter);
        QFETCH(bool, useRtf);
        QFETCH(QStringList, row);
        const Shown shown = Write(Route(className, filter), useRtf);
        QVERIFY2(shown.Error.isEmpty(), qPrintable(shown.Error));
        QStringList all;
        for (const QStringList& r : shown.Rows)
            all << r.join(" | ");
        QVERIFY2(shown.HasRow(row), qPrintable(all.join("\n")));
    }

    void rsvpRowsShowTheReply() {
        const Shown rtf = Write(Route("clsRTFRSVP", 1), true);
        const auto line = [&](const QString& rsvpId) {
            for (qsizetype i = 1; i < rtf.Rows.size(); ++i)
                if (rtf.Rows[i].value(1) == rsvpId)
                    return rtf.RowLines[i];
            return QString();
        };
        // Answered with nobody coming: struck through in grey; waiting: bold; answered and coming: plain.
        QVERIFY(line("2").contains("\\strike "));
        QVERIFY(line("2").contains("\\cf6"));
        QVERIFY(!line("2").contains("\\b "));
        QVERIFY(line("3").contains("\\b "));
        QVERIFY(!line("3").contains("\\strike"));
        QVERIFY(!line("1").contains("\\strike"));
        QVERIFY(!line("1").contains("\\b "));
        QVERIFY(!line("1").contains("\\cf6"));
        QVERIFY(!line("3").contains("\\cf6"));
    }

    void seatingChartGroupsByTable_data() {
        QTest::addColumn<bool>("useRtf");
        QTest::newRow("rtf") << true;
        QTest::newRow("csv") << false;
    }
    void seatingChartGroupsByTable() {
        QFETCH(bool, useRtf);
        const Shown shown = Write(Route("clsRTFTable"), useRtf);
        const QList<QStringList> expected{{"RSVP ID", "Contact Name", "Meal"},
                                          {"Table #1 - Head Table"},
                                          {"", "Smith, Anna Lee", "Beef"},
                                          {"1", NastyLast() + ", Zoë", "Fish"},
                                          {"Table #2"},
                                          {"", "Loner, Frank", ""}};
        QCOMPARE(shown.Rows, expected);
        if (useRtf) {
            // A group row spans the table, bold.
            QCOMPARE(shown.RowEdges[1], QList<int>{13680});
            QVERIFY(shown.RowLines[1].contains("\\b "));
            QVERIFY(!shown.RowLines[2].contains("\\b "));
        }
    }

    void anEmptyListHasItsHeaderOnly() {
        const Shown rtf = Write(Route("clsRTFContacts", 25, "Out of Towner"), true);
        QVERIFY(rtf.Text.contains("Out of Towner Contacts\r\n"));
        QVERIFY(rtf.Text.contains("Total Records: 0\r\n"));
        QCOMPARE(rtf.Rows.size(), 1);
        const Shown csv = Write(Route("clsRTFContacts", 25, "Out of Towner"), false);
        QCOMPARE(csv.Rows.size(), 1);
    }

    void excludingTheCoupleIsTheRoutesChoice_data() {
        QTest::addColumn<bool>("exclude");
        QTest::addColumn<QString>("statistics");
        QTest::newRow("left out") << true << "Total Records: 2";
        QTest::newRow("listed") << false << "Total Records: 4";
    }
    void excludingTheCoupleIsTheRoutesChoice() {
        QFETCH(bool, exclude);
        QFETCH(QString, statistics);
        clsReportRoute route = Route("clsRTFContacts", 14, "Attending");
        route.ExcludeBrideGroom = exclude;
        const Shown shown = Write(route, true);
        QVERIFY(shown.Text.contains(statistics + "\r\n"));
        QCOMPARE(shown.Rows.size(), exclude ? 3 : 5);
        QCOMPARE(shown.HasRow({"", "Smith, Anna Lee", "", "", "Bride", "", "A"}), !exclude);
    }

    void aFileThatCannotBeWrittenGivesNoName() {
        // The report folder is a file: nothing can be written below it.
        QFile blocker(gApp().ReportPath());
        QDir(gApp().ReportPath()).removeRecursively();
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const QString written = clsReportClasses::Build(Route("clsRTFTentcard"));
        QFile::remove(gApp().ReportPath());
        QVERIFY(written.isEmpty());
        QVERIFY(!db->Messages().Prompts.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_GuestReports)
#include "tst_GuestReports.moc"
