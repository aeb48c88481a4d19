#include "TestDatabase.h"
#include "seating/SeatingTestData.h"
#include "seating/modSeating.h"

#include <QPoint>
#include <QtTest>
#include <memory>
#include <sqlite3.h>

using modSeating::Seats;
using namespace SeatingTestData;

class tst_modSeating : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static int SeatedAt(const QString& table) { return int(SeatedInDb(table).size()); }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    // Everybody or nobody: the message names the free seats in the right number.
    void seatAllOrNone_data() {
        QTest::addColumn<int>("seats");
        QTest::addColumn<int>("alreadySeated");
        QTest::addColumn<int>("selected");
        QTest::addColumn<QString>("message");
        QTest::newRow("fits exactly") << 8 << 6 << 2 << QString();
        QTest::newRow("one free, two chosen") << 8 << 7 << 2 << "There is only 1 seat available.";
        QTest::newRow("three free, five chosen") << 8 << 5 << 5 << "There are only 3 seats available.";
        QTest::newRow("full") << 8 << 8 << 1 << "Table #4 is full.\n\nAll 8 seats are taken.";
        QTest::newRow("over-full counts as full")
            << 2 << 3 << 1 << "Table #4 is full.\n\nAll 2 seats are taken.";
    }
    void seatAllOrNone() {
        QFETCH(int, seats);
        QFETCH(int, alreadySeated);
        QFETCH(int, selected);
        QFETCH(QString, message);
        const QString table = AddTable("4", seats);
        for (const QString& id : AddGuests(alreadySeated, 100))
            TestDatabase::Exec("UPDATE CONTACT SET DINING_TABLE_ID = ? WHERE CONTACT_ID = ?", {table, id});
        const QStringList chosen = AddGuests(selected);

        const modSeating::SeatResult result = modSeating::SeatContacts(table, chosen);

        QCOMPARE(result.Message, message);
        QCOMPARE(result.Seated, message.isEmpty());
        QCOMPARE(SeatedAt(table), alreadySeated + (result.Seated ? selected : 0));
        for (const QString& id : chosen)
            QCOMPARE(TableOf(id), result.Seated ? table : QString());
    }

    // A guest who already sits at the table takes no second seat; one moving from another table is
    // remembered with the table they leave.
    void seatKeepsWhereEachCameFrom() {
        const QString full = AddTable("1", 2);
        const QString other = AddTable("2", 4);
        const QStringList guests = AddGuests(3);
        modSeating::SeatContacts(full, guests.mid(0, 2));
        const modSeating::SeatResult result = modSeating::SeatContacts(full, guests.mid(0, 2));
        QVERIFY(result.Seated);
        QVERIFY(result.Previous.isEmpty());

        const modSeating::SeatResult moved = modSeating::SeatContacts(other, {guests[0], guests[2]});
        QVERIFY(moved.Seated);
        QCOMPARE(moved.Previous, (Seats{{guests[0], full}, {guests[2], QString()}}));
        modSeating::RestoreSeats(moved.Previous);
        QCOMPARE(TableOf(guests[0]), full);
        QCOMPARE(TableOf(guests[2]), QString());
    }

    void anUnknownContactSeatsNobody() {
        const QString table = AddTable("1", 8);
        const QStringList guests = AddGuests(2);
        QVERIFY_THROWS_EXCEPTION(clsDbError, modSeating::SeatContacts(table, {guests[0], "999", guests[1]}));
        QCOMPARE(SeatedAt(table), 0);
        QVERIFY_THROWS_EXCEPTION(clsDbError, modSeating::SeatContacts("77", guests));
    }

    void unseatThenRestore() {
        const QString a = AddTable("1", 8);
        const QString b = AddTable("2", 8);
        const QStringList guests = AddGuests(3);
        modSeating::SeatContacts(a, guests.mid(0, 2));
        modSeating::SeatContacts(b, guests.mid(2));
        const Seats before = modSeating::Unseat({guests[0], guests[2]});
        QCOMPARE(before, (Seats{{guests[0], a}, {guests[2], b}}));
        QCOMPARE(TableOf(guests[0]), QString());
        QCOMPARE(TableOf(guests[1]), a);
        modSeating::RestoreSeats(before);
        QCOMPARE(TableOf(guests[2]), b);
    }

    void emptyAndDeleteTables() {
        const QString a = AddTable("1", 8);
        const QString b = AddTable("2", 8);
        const QStringList guests = AddGuests(3);
        modSeating::SeatContacts(a, guests.mid(0, 2));
        modSeating::SeatContacts(b, guests.mid(2));

        QCOMPARE(modSeating::EmptyTable(a), (Seats{{guests[0], a}, {guests[1], a}}));
        QCOMPARE(SeatedAt(a), 0);
        QCOMPARE(SeatedAt(b), 1);
        modSeating::RestoreSeats({{guests[0], a}});
        QCOMPARE(modSeating::EmptyAllTables().size(), 2);
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID Is Not Null"), "0");

        modSeating::SeatContacts(b, guests);
        modSeating::DeleteAllTables();
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM DINING_TABLE"), "0");
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID Is Not Null"), "0");
    }

    // Twips throughout: a 64-pixel table (960) on a 1000 by 800 pixel floor (15000 by 12000).
    void placeTable_data() {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("y");
        QTest::addColumn<int>("grab");
        QTest::addColumn<int>("shape");
        QTest::addColumn<bool>("dropped");
        QTest::addColumn<QPoint>("topLeft");
        QTest::newRow("held by the middle of a cell")
            << 3000 << 4500 << 240 << 1 << true << QPoint(2760, 4260);
        QTest::newRow("off the left and top") << 100 << 50 << 240 << 1 << true << QPoint(0, 0);
        QTest::newRow("off the right edge") << 14900 << 600 << 240 << 1 << true << QPoint(14040, 360);
        QTest::newRow("off the bottom edge") << 600 << 13000 << 240 << 2 << true << QPoint(360, 11040);
        QTest::newRow("shape 3 dropped two pixels left")
            << 3000 << 3000 << 240 << 3 << true << QPoint(2730, 2760);
        QTest::newRow("shape 4 dropped two pixels up")
            << 3000 << 3000 << 240 << 4 << true << QPoint(2760, 2730);
        QTest::newRow("shape 3 at the left edge stays on it")
            << 10 << 3000 << 0 << 3 << true << QPoint(0, 3000);
        QTest::newRow("shape 4 moved by a key keeps its top")
            << 3000 << 3000 << 0 << 4 << false << QPoint(3000, 3000);
        QTest::newRow("a key step beyond the right edge")
            << 14055 << 0 << 0 << 1 << false << QPoint(14040, 0);
    }
    void placeTable() {
        QFETCH(int, x);
        QFETCH(int, y);
        QFETCH(int, grab);
        QFETCH(int, shape);
        QFETCH(bool, dropped);
        QFETCH(QPoint, topLeft);
        modSeating::TablePlacement place;
        place.X = x;
        place.Y = y;
        place.GrabX = place.GrabY = grab;
        place.Width = place.Height = 960;
        place.FloorWidth = 15000;
        place.FloorHeight = 12000;
        place.ShapeType = shape;
        place.Dropped = dropped;
        QCOMPARE(modSeating::PlaceTable(place), topLeft);
    }

    void moveTableSavesTwips() {
        const QString table = AddTable("1", 8);
        modSeating::MoveTable(table, QPoint(1500, 45));
        QCOMPARE(TestDatabase::Scalar(
                     "SELECT POS_X || ',' || POS_Y FROM DINING_TABLE WHERE DINING_TABLE_ID = ?", {table}),
                 "1500,45");
    }

    // Another program holding the file: nothing of the seating changes.
    void aLockedFileSeatsNobody() {
        const QString table = AddTable("1", 8);
        const QStringList guests = AddGuests(2);
        sqlite3* other = nullptr;
        QCOMPARE(sqlite3_open(qPrintable(gDB().DatabasePath), &other), SQLITE_OK);
        QCOMPARE(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
        gDB().SetBusyTimeout(20);
        try {
            modSeating::SeatContacts(table, guests);
            QFAIL("seated while the file was locked");
        } catch (const clsDbError& e) {
            QVERIFY2(e.Message().contains("in use"), qPrintable(e.Message()));
        }
        sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close(other);
        gDB().SetBusyTimeout(clsDB::BusyTimeoutMs);
        QCOMPARE(SeatedAt(table), 0);
    }
};

QTEST_GUILESS_MAIN(tst_modSeating)
#include "tst_modSeating.moc"
