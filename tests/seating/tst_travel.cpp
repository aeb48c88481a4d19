#include "TestDatabase.h"
#include "core/modGeneral.h"
#include "seating/clsFLIGHT.h"
#include "seating/clsHOTEL.h"
#include "seating/modTravel.h"

#include <QtTest>
#include <memory>

// Hotels and flights: the two kinds of travel a guest from out of town is assigned to.
class tst_travel : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static clsHOTEL AddHotel(const QString& name, const QString& number = QString()) {
        clsHOTEL hotel;
        hotel.HOTEL_NB = number.isEmpty() ? clsHOTEL::NEXT_NB() : number;
        hotel.HOTEL_NM = name;
        hotel.ROOMS_NB = QStringLiteral("20");
        hotel.POS_X = QStringLiteral("0");
        hotel.POS_Y = QStringLiteral("0");
        hotel.Save(true);
        return hotel;
    }
    static clsFLIGHT AddFlight(const QString& name, const QString& number = QString()) {
        clsFLIGHT flight;
        flight.FLIGHT_NB = number.isEmpty() ? clsFLIGHT::NEXT_NB() : number;
        flight.FLIGHT_NM = name;
        flight.DEPARTS_AIRPORT_NM = QStringLiteral("BOS");
        flight.DEPARTS_DT = QStringLiteral("04-Jun-2027 9:15 AM");
        flight.ARRIVES_AIRPORT_NM = QStringLiteral("SFO");
        flight.ARRIVES_DT = QStringLiteral("04-Jun-2027 12:40 PM");
        flight.POS_X = QStringLiteral("0");
        flight.POS_Y = QStringLiteral("0");
        flight.Save(true);
        return flight;
    }
    // Guest 3, 4, ... with a hotel or a flight.
    static void AddGuest(int id, const char* column, const QString& value) {
        TestDatabase::Exec(
            QStringLiteral("INSERT INTO CONTACT (CONTACT_ID, LAST_NM, ATTENDING_FG, %1) VALUES (?, "
                           "'Guest', 'Y', ?)")
                .arg(QLatin1String(column)),
            {id, value});
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void totals_data() {
        QTest::addColumn<int>("places");
        QTest::addColumn<QList<int>>("guestsPerPlace");
        QTest::newRow("three") << 3 << QList<int>{2, 0, 5};
    }
    void totals() {
        QFETCH(int, places);
        QFETCH(QList<int>, guestsPerPlace);
        int guest = 3;
        QStringList hotels, flights;
        for (int i = 0; i < places; ++i) {
            hotels << AddHotel(QStringLiteral("Hotel %1").arg(i)).HOTEL_ID;
            flights << AddFlight(QStringLiteral("Flight %1").arg(i)).FLIGHT_ID;
            for (int g = 0; g < guestsPerPlace[i]; ++g) {
                AddGuest(guest, "HOTEL_ID", hotels.last());
                TestDatabase::Exec("UPDATE CONTACT SET FLIGHT_ID = ? WHERE CONTACT_ID = ?",
                                   {flights.last(), guest});
                ++guest;
            }
        }
        QCOMPARE(clsHOTEL::Total(), long(places));
        QCOMPARE(clsFLIGHT::Total(), long(places));
        for (int i = 0; i < places; ++i) {
            QCOMPARE(clsHOTEL::TotalOccupants(hotels[i]), long(guestsPerPlace[i]));
            QCOMPARE(clsFLIGHT::TotalPassengers(flights[i]), long(guestsPerPlace[i]));
        }
        QCOMPARE(clsHOTEL::TotalOccupants("99"), 0L);
    }

    void nextNumbers_data() {
        QTest::addColumn<QStringList>("numbers");
        QTest::addColumn<int>("deleteLast");
        QTest::addColumn<QString>("next");
        QTest::newRow("empty") << QStringList{} << 0 << "1";
        QTest::newRow("highest deleted") << QStringList{"1", "2", "3"} << 1 << "3";
        QTest::newRow("typed number") << QStringList{"1", "9"} << 0 << "10";
    }
    void nextNumbers() {
        QFETCH(QStringList, numbers);
        QFETCH(int, deleteLast);
        QFETCH(QString, next);
        QStringList hotels, flights;
        for (const QString& number : numbers) {
            hotels << AddHotel(QStringLiteral("H"), number).HOTEL_ID;
            flights << AddFlight(QStringLiteral("F"), number).FLIGHT_ID;
        }
        for (int i = 0; i < deleteLast; ++i) {
            clsHOTEL().Delete(hotels.takeLast());
            clsFLIGHT().Delete(flights.takeLast());
        }
        QCOMPARE(clsHOTEL::NEXT_NB(), next);
        QCOMPARE(clsFLIGHT::NEXT_NB(), next);
    }

    void deletingAFlightSendsPassengersBack() {
        const clsFLIGHT flight = AddFlight("Southwest Flight #555");
        const clsFLIGHT other = AddFlight("Delta 12");
        AddGuest(3, "FLIGHT_ID", flight.FLIGHT_ID);
        AddGuest(4, "FLIGHT_ID", other.FLIGHT_ID);
        clsFLIGHT().Delete(flight.FLIGHT_ID);
        QVERIFY(db->Messages().Prompts.isEmpty());
        QCOMPARE(
            TestDatabase::Scalar("SELECT COUNT(*) FROM CONTACT WHERE FLIGHT_ID IS NULL AND CONTACT_ID = 3"),
            QStringLiteral("1"));
        QCOMPARE(clsFLIGHT::TotalPassengers(other.FLIGHT_ID), 1L);
        QCOMPARE(clsFLIGHT::Total(), 1L);
    }

    void deletingAHotelLeavesItsGuestsToTheDatabase() {
        const clsHOTEL housed = AddHotel("Grand");
        const clsHOTEL empty = AddHotel("Inn");
        AddGuest(3, "HOTEL_ID", housed.HOTEL_ID);
        // The screen's edge shows the database's refusal in the user's words.
        QVERIFY(!RecordIO::Attempt([&] { clsHOTEL().Delete(housed.HOTEL_ID); }));
        QCOMPARE(db->Messages().Prompts,
                 QStringList({"Unable to delete.  Contacts are associated with this entry."}));
        QCOMPARE(clsHOTEL::TotalOccupants(housed.HOTEL_ID), 1L);
        clsHOTEL().Delete(empty.HOTEL_ID);
        QCOMPARE(clsHOTEL::Total(), 1L);
    }

    void hotelsAndFlightsAreListedByNumber() {
        AddHotel("B", "5");
        AddHotel("A", "2");
        AddFlight("B", "9");
        AddFlight("A", "3");
        const QList<clsHOTEL> hotels = clsHOTEL::OpenRecords();
        const QList<clsFLIGHT> flights = clsFLIGHT::OpenRecords();
        QCOMPARE(hotels.size(), 2);
        QCOMPARE(hotels.first().HOTEL_NB, QStringLiteral("2"));
        QCOMPARE(flights.first().FLIGHT_NB, QStringLiteral("3"));
    }

    void addressOnOneLine_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("expected");
        QTest::newRow("two lines") << "1 Pier Rd\r\nSausalito, CA"
                                   << "1 Pier Rd, Sausalito, CA";
        QTest::newRow("line ends around") << "\r\n  1 Pier Rd\r\nSausalito \r\n"
                                          << "1 Pier Rd, Sausalito";
        QTest::newRow("bare line feeds") << "1 Pier Rd\nSausalito"
                                         << "1 Pier Rd, Sausalito";
        QTest::newRow("empty") << ""
                               << "";
    }
    void addressOnOneLine() {
        QFETCH(QString, address);
        QFETCH(QString, expected);
        clsHOTEL hotel;
        hotel.ADDRESS_TX = address;
        QCOMPARE(hotel.ADDRESS_TX_NO_CRLF(), expected);
    }

    void flightTimesRoundTrip() {
        const clsFLIGHT flight = AddFlight("United 88");
        QCOMPARE(gDB().ExecuteRaw("SELECT DEPARTS_DT FROM FLIGHT").Scalar(),
                 QStringLiteral("2027-06-04 09:15:00"));
        clsFLIGHT read;
        QVERIFY(read.OpenRecord(flight.FLIGHT_ID));
        QCOMPARE(read.DEPARTS_DT_DateTimeFormat(),
                 FormatDateTime(QDateTime(QDate(2027, 6, 4), QTime(9, 15)), DateTimeFormat()));
        QCOMPARE(read.ARRIVES_DT_DateTimeFormat(),
                 FormatDateTime(QDateTime(QDate(2027, 6, 4), QTime(12, 40)), DateTimeFormat()));
    }

    void hotelPatchMakesAddressAndContactOptional() {
        // The shape of an older file: address and contact required.
        TestDatabase::Exec("PRAGMA foreign_keys=OFF");
        TestDatabase::Exec("DROP TABLE HOTEL");
        TestDatabase::Exec(
            "CREATE TABLE HOTEL (HOTEL_ID INTEGER NOT NULL PRIMARY KEY, HOTEL_NB INTEGER NOT NULL, "
            "HOTEL_NM TEXT NOT NULL, ADDRESS_TX TEXT NOT NULL, CONTACT_NM TEXT NOT NULL, "
            "PHONE_TX TEXT, FAX_TX TEXT, EMAIL_TX TEXT, WEB_SITE_TX TEXT, ROOMS_NB INTEGER NOT NULL, "
            "POS_X INTEGER NOT NULL, POS_Y INTEGER NOT NULL, NOTES_TX TEXT)");
        TestDatabase::Exec("PRAGMA foreign_keys=ON");
        TestDatabase::Exec(
            "INSERT INTO HOTEL VALUES (1, 1, 'Grand', '5 Main St', 'Desk', NULL, NULL, NULL, NULL, "
            "40, 100, 200, 'near')");
        AddGuest(3, "HOTEL_ID", "1");

        clsHOTEL noAddress;
        noAddress.HOTEL_NB = QStringLiteral("2");
        noAddress.HOTEL_NM = QStringLiteral("Inn");
        noAddress.ROOMS_NB = noAddress.POS_X = noAddress.POS_Y = QStringLiteral("0");
        QVERIFY_THROWS_EXCEPTION(clsDbError, noAddress.Save(true));

        QVERIFY(clsHOTEL::Patch_7_Apply());
        noAddress.Save(true);
        clsHOTEL grand;
        QVERIFY(grand.OpenRecord("1"));
        QCOMPARE(grand.ADDRESS_TX, QStringLiteral("5 Main St"));
        QCOMPARE(grand.CONTACT_NM, QStringLiteral("Desk"));
        QCOMPARE(grand.NOTES_TX, QStringLiteral("near"));
        QCOMPARE(clsHOTEL::TotalOccupants("1"), 1L);
        QVERIFY(gDB().ForeignKeyExists("CONTACT", "CONTACT_TO_HOTEL_FK"));
        QVERIFY(!clsHOTEL::Patch_7_Apply());
        QVERIFY(db->Messages().Prompts.isEmpty());
    }

    // Many guests into a hotel or onto a flight at once, and back: all or nothing, the step undoable.
    void assignManyAtOnce_data() {
        QTest::addColumn<bool>("hotel");
        QTest::newRow("hotel") << true;
        QTest::newRow("flight") << false;
    }
    void assignManyAtOnce() {
        QFETCH(bool, hotel);
        const modTravel::Kind kind = hotel ? modTravel::Kind::Hotel : modTravel::Kind::Flight;
        const char* column = hotel ? "HOTEL_ID" : "FLIGHT_ID";
        const QString first = hotel ? AddHotel("Grand").HOTEL_ID : AddFlight("United 88").FLIGHT_ID;
        const QString second = hotel ? AddHotel("Inn").HOTEL_ID : AddFlight("Delta 12").FLIGHT_ID;
        AddGuest(3, column, first);
        AddGuest(4, column, QString());
        const auto where = [column](int id) {
            return TestDatabase::Scalar(
                QStringLiteral("SELECT %1 FROM CONTACT WHERE CONTACT_ID = ?").arg(QLatin1String(column)),
                {id});
        };

        QVERIFY(ErrorOf([&] { modTravel::Assign(kind, {"3", "4", "999"}, second); }).contains("999"));
        QCOMPARE(where(3), first);
        QVERIFY(!ErrorOf([&] { modTravel::Assign(kind, {"4"}, "77"); }).isEmpty());
        QCOMPARE(where(4), QString());

        const modTravel::Assignments before = modTravel::Assign(kind, {"3", "4"}, second);
        QCOMPARE(before, (modTravel::Assignments{{"3", first}, {"4", QString()}}));
        QCOMPARE(where(3), second);
        QCOMPARE(where(4), second);
        modTravel::Restore(kind, before);
        QCOMPARE(where(3), first);
        QCOMPARE(where(4), QString());
        QCOMPARE(modTravel::KeyOfNumber(kind, hotel ? clsHOTEL().NEXT_NB() : clsFLIGHT::NEXT_NB()),
                 QString());
    }

    void boxesStayInside_data() {
        QTest::addColumn<QPoint>("wanted");
        QTest::addColumn<QPoint>("kept");
        QTest::newRow("inside") << QPoint(100, 200) << QPoint(100, 200);
        QTest::newRow("left and above") << QPoint(-5, -1) << QPoint(0, 0);
        QTest::newRow("right and below") << QPoint(9000, 9000) << QPoint(700, 450);
        QTest::newRow("on the corner") << QPoint(700, 450) << QPoint(700, 450);
    }
    void boxesStayInside() {
        QFETCH(QPoint, wanted);
        QFETCH(QPoint, kept);
        QCOMPARE(modTravel::KeepInside(wanted, QSize(300, 50), QSize(1000, 500)), kept);
        // A box larger than the area stays at its top left.
        QCOMPARE(modTravel::KeepInside(wanted, QSize(2000, 600), QSize(1000, 500)), QPoint(0, 0));
    }
};

QTEST_GUILESS_MAIN(tst_travel)
#include "tst_travel.moc"
