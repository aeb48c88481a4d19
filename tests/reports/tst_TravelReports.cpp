#include "GuestReportTestData.h"
#include "core/modGeneral.h"
#include "reports/clsReportCatalogue.h"

#include <QtTest>
#include <memory>

using namespace GuestReportTestData;

namespace {

QString When(int hour, int minute) {
    return FormatDateTime(QDateTime(QDate(2027, 6, 4), QTime(hour, minute)), DateTimeFormat());
}

} // namespace

// The hotel and flight reports of a small wedding, in both dialects: group rows per hotel and flight,
// bold names, italic notes.
class tst_TravelReports : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    // Zoë stays at the Harbourview, her guest at the Vendue; both take United 88, nobody takes Delta 12.
    static void AddTravel() {
        TestDatabase::Exec(
            "INSERT INTO HOTEL VALUES (1, 1, 'Harbourview Inn', ?, 'Group sales', '843-555-0300', "
            "'843-555-0301', 'sales@harbourview.example', 'harbourview.example', 10, 0, 0, "
            "'Block under Smith-Jones')",
            {QStringLiteral("10 Queen St\r\nCharleston, SC 29401")});
        TestDatabase::Exec("INSERT INTO HOTEL (HOTEL_ID, HOTEL_NB, HOTEL_NM, ROOMS_NB, POS_X, POS_Y) "
                           "VALUES (2, 2, 'Vendue', 4, 0, 0)");
        TestDatabase::Exec(
            "INSERT INTO FLIGHT VALUES (1, 1, 'United Flight #88', 'BOS', '2027-06-04 09:15:00', "
            "'CHS', '2027-06-04 11:40:00', 0, 0, 'Family block')");
        TestDatabase::Exec(
            "INSERT INTO FLIGHT VALUES (2, 2, 'Delta Flight #12', 'ATL', '2027-06-04 13:00:00', "
            "'CHS', '2027-06-04 14:05:00', 0, 0, NULL)");
        TestDatabase::Exec("UPDATE CONTACT SET HOTEL_ID = 1, FLIGHT_ID = 1 WHERE FIRST_NM = 'Zoë'");
        TestDatabase::Exec("UPDATE CONTACT SET HOTEL_ID = 2, FLIGHT_ID = 1 WHERE GUEST_OF_ID IS NOT NULL");
    }

private slots:
    void initTestCase() {
        RegisterReportClasses();
        db = std::make_unique<TestDatabase>();
        MakeSmallWedding();
        AddTravel();
    }
    void cleanupTestCase() { db.reset(); }

    void catalogueOffersThem() {
        for (const int section : {clsReportCatalogue::Flights, clsReportCatalogue::Hotels}) {
            for (const clsReportCatalogue::FilterRow& row : clsReportCatalogue::FilterRows(section)) {
                if (row.ClassName.startsWith(QLatin1String("clsRTF")))
                    QVERIFY2(row.Available, qPrintable(row.ClassName));
            }
        }
    }

    void rows_data() {
        QTest::addColumn<QString>("className");
        QTest::addColumn<bool>("useRtf");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("statistics");
        QTest::addColumn<QList<QStringList>>("rows");
        const QString zoe = NastyLast() + ", Zoë";
        const QList<QStringList> hotels{
            {"RSVP ID", "Contact Name", "Phone", "E-mail", "Room #"},
            {"Harbourview Inn\r\n10 Queen St, Charleston, SC 29401\r\np. 843-555-0300\r\nf. 843-555-0301"},
            {"1", zoe, "555-0101", "zoe@example.com", ""},
            {"Vendue"},
            {"1", "Guest", "", "", ""}};
        const QList<QStringList> flights{
            {"RSVP ID", "Contact Name", "Phone", "E-mail"},
            {"United Flight #88\r\nDeparts: BOS " + When(9, 15) + "\r\nArrives: CHS " + When(11, 40)},
            {"1", "Guest", "", ""},
            {"1", zoe, "555-0101", "zoe@example.com"}};
        const QList<QStringList> hotelOverview{
            {"Hotel", "Address", "Contact", "Phone/Fax/E-mail", "Website"},
            {"Harbourview Inn\r\nBlock under Smith-Jones", "10 Queen St\r\nCharleston, SC 29401",
             "Group sales", "p. 843-555-0300\r\nf. 843-555-0301\r\nsales@harbourview.example",
             "harbourview.example"},
            {"Vendue", "", "", "", ""}};
        const QList<QStringList> flightOverview{
            {"Flight", "Departs", "Arrives", "# of Attendees"},
            {"United Flight #88\r\nFamily block", "BOS\r\n" + When(9, 15), "CHS\r\n" + When(11, 40), "2"},
            {"Delta Flight #12", "ATL\r\n" + When(13, 0), "CHS\r\n" + When(14, 5), "0"}};
        for (const bool rtf : {true, false}) {
            const char* dialect = rtf ? " rtf" : " csv";
            QTest::addRow("hotels%s", dialect) << "clsRTFHotels" << rtf << "Hotels"
                                               << "2 Hotels" << hotels;
            QTest::addRow("flights%s", dialect) << "clsRTFFlights" << rtf << "Flights"
                                                << "2 Flights" << flights;
            QTest::addRow("hotel overview%s", dialect) << "clsRTFHotelOverview" << rtf << "Hotel Overview"
                                                       << "2 hotels" << hotelOverview;
            QTest::addRow("flight overview%s", dialect) << "clsRTFFlightOverview" << rtf << "Flight Overview"
                                                        << "2 flights" << flightOverview;
        }
    }
    void rows() {
        QFETCH(QString, className);
        QFETCH(bool, useRtf);
        QFETCH(QString, title);
        QFETCH(QString, statistics);
        QFETCH(QList<QStringList>, rows);
        const Shown shown = Write(Route(className), useRtf);
        QCOMPARE(shown.Error, QString());
        QCOMPARE(shown.Rows, rows);
        if (useRtf) {
            QVERIFY(shown.Text.contains(title + "\r\n"));
            QVERIFY(shown.Text.contains(statistics + "\r\n"));
        }
    }

    // Two flights landing at the same minute: each has one group row with its own passengers, even when
    // their invitations interleave.
    void flightsLandingTogether() {
        TestDatabase::Exec("UPDATE FLIGHT SET ARRIVES_DT = '2027-06-04 11:40:00' WHERE FLIGHT_ID = 2");
        TestDatabase::Exec("UPDATE CONTACT SET FLIGHT_ID = 2 WHERE GUEST_OF_ID IS NOT NULL");
        TestDatabase::Exec("UPDATE CONTACT SET ATTENDING_FG = 'Y', FLIGHT_ID = 2 WHERE FIRST_NM = 'Eve'");
        const Shown shown = Write(Route("clsRTFFlights"), false);
        TestDatabase::Exec("UPDATE FLIGHT SET ARRIVES_DT = '2027-06-04 14:05:00' WHERE FLIGHT_ID = 2");
        TestDatabase::Exec("UPDATE CONTACT SET FLIGHT_ID = 1 WHERE GUEST_OF_ID IS NOT NULL");
        TestDatabase::Exec("UPDATE CONTACT SET ATTENDING_FG = NULL, FLIGHT_ID = NULL WHERE FIRST_NM = 'Eve'");
        QStringList groups;
        for (const QStringList& row : shown.Rows)
            if (row.size() == 1)
                groups << row.first().section("\r\n", 0, 0);
        QCOMPARE(groups, (QStringList{"United Flight #88", "Delta Flight #12"}));
        QCOMPARE(shown.Rows.size(), 1 + 2 + 3);
    }

    // Names print bold and notes italic; a group row spans the table.
    void styles() {
        const Shown overview = Write(Route("clsRTFFlightOverview"), true);
        QVERIFY(overview.RowLines[1].contains("\\b United Flight #88\\b0"));
        QVERIFY(overview.RowLines[1].contains("\\i Family block\\i0"));
        QVERIFY(!overview.RowLines[2].contains("\\i "));
        const Shown hotels = Write(Route("clsRTFHotels"), true);
        QCOMPARE(hotels.RowEdges[1], QList<int>{13680});
        QVERIFY(hotels.RowLines[1].contains("\\b "));
    }
};

QTEST_GUILESS_MAIN(tst_TravelReports)
#include "tst_TravelReports.moc"
