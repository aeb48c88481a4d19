#include "TestDatabase.h"
#include "UiTestTools.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "reports/clsReportCatalogue.h"
#include "seating/SeatingTestData.h"
#include "seating/ui/GuestDropTools.h"
#include "seating/ui/frmFlight.h"
#include "seating/ui/frmHotel.h"
#include "seating/ui/frmMain_04_Attendees_Flights.h"
#include "seating/ui/frmMain_04_Attendees_Hotels.h"
#include "seating/ui/usrFloorPlan.h"
#include "seating/ui/usrTravelBox.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modPages.h"

#include <QApplication>
#include <QDateTimeEdit>
#include <QDropEvent>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTreeWidget>
#include <QUndoStack>
#include <QtTest>
#include <memory>

using SeatingTestData::AddGuests;
using UiTestTools::Child;

namespace {

QString AddHotel(int id, const QString& name, int rooms = 10) {
    TestDatabase::Exec("INSERT INTO HOTEL (HOTEL_ID, HOTEL_NB, HOTEL_NM, ROOMS_NB, POS_X, POS_Y) "
                       "VALUES (?, ?, ?, ?, 0, 0)",
                       {id, id, name, rooms});
    return QString::number(id);
}

QString AddFlight(int id, const QString& name) {
    TestDatabase::Exec("INSERT INTO FLIGHT (FLIGHT_ID, FLIGHT_NB, FLIGHT_NM, DEPARTS_AIRPORT_NM, DEPARTS_DT, "
                       "ARRIVES_AIRPORT_NM, ARRIVES_DT, POS_X, POS_Y) "
                       "VALUES (?, ?, ?, 'BOS', '2027-06-04 09:15:00', 'CHS', '2027-06-04 11:40:00', 0, 0)",
                       {id, id, name});
    return QString::number(id);
}

QString Column(bool hotel) {
    return hotel ? QStringLiteral("HOTEL_ID") : QStringLiteral("FLIGHT_ID");
}

QString GroupInDb(bool hotel, const QString& contactId) {
    return TestDatabase::Scalar(
        QStringLiteral("SELECT %1 FROM CONTACT WHERE CONTACT_ID = ?").arg(Column(hotel)), {contactId});
}

QString PositionInDb(bool hotel, const QString& id) {
    return TestDatabase::Scalar(hotel ? "SELECT POS_X || ',' || POS_Y FROM HOTEL WHERE HOTEL_ID = ?"
                                      : "SELECT POS_X || ',' || POS_Y FROM FLIGHT WHERE FLIGHT_ID = ?",
                                {id});
}

QString AddGroup(bool hotel, int id, const QString& name) {
    return hotel ? AddHotel(id, name) : AddFlight(id, name);
}

std::unique_ptr<usrTravelBoard> MakeBoard(bool hotel) {
    if (hotel)
        return std::make_unique<frmMain_04_Attendees_Hotels>();
    return std::make_unique<frmMain_04_Attendees_Flights>();
}

} // namespace

class tst_TravelBoards : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void init() {
        db = std::make_unique<TestDatabase>();
        // The couple attend and so stand in every list; these tests count only the guests they add.
        TestDatabase::Exec("UPDATE CONTACT SET ATTENDING_FG = 'N' WHERE CONTACT_ID IN (1, 2)");
    }
    void cleanup() { db.reset(); }

    void boards_data() {
        QTest::addColumn<bool>("hotel");
        QTest::addColumn<QString>("heading");
        QTest::newRow("hotels") << true << "Attendees to be housed (";
        QTest::newRow("flights") << false << "Attendees to be boarded (";
    }

    // Guests from the list onto a box, from one node to another through the tree, back onto the list; the
    // database and both views agree at every step, and Ctrl+Z takes the steps back.
    void assignMoveAndReturn_data() { boards_data(); }
    void assignMoveAndReturn() {
        QFETCH(bool, hotel);
        QFETCH(QString, heading);
        const QString a = AddGroup(hotel, 1, "Harbourview");
        const QString b = AddGroup(hotel, 2, "Vendue");
        const QStringList guests = AddGuests(3);
        auto page = MakeBoard(hotel);
        page->resize(1200, 800);
        page->show();
        QCOMPARE(page->ListHeading(), heading + "3)");

        QVERIFY(page->AssignGuests(a, guests.mid(0, 2)));
        QCOMPARE(GroupInDb(hotel, guests[0]), a);
        QCOMPARE(page->GuestsIn(a), guests.mid(0, 2));
        QCOMPARE(page->ListedIds(), QStringList{guests[2]});
        QCOMPARE(Child<QLabel>(page.get(), "lblAttendees")->text(), heading + "1)");

        auto* tree = Child<QTreeWidget>(page.get(), "tvw");
        QTreeWidgetItem* nodeB = tree->topLevelItem(1);
        DropGuests(tree->viewport(), tree->visualItemRect(nodeB).center(), {guests[1]}, true);
        QCOMPARE(GroupInDb(hotel, guests[1]), b);
        QCOMPARE(page->GuestsIn(b), QStringList{guests[1]});

        auto* list = Child<QTreeWidget>(page.get(), "lvw");
        DropGuests(list->viewport(), QPoint(10, 10), {guests[0]}, true);
        QCOMPARE(GroupInDb(hotel, guests[0]), QString());
        QCOMPARE(page->ListedIds(), (QStringList{guests[0], guests[2]}));

        page->UndoStack()->undo();
        page->UndoStack()->undo();
        QCOMPARE(GroupInDb(hotel, guests[0]), a);
        QCOMPARE(GroupInDb(hotel, guests[1]), a);
        QCOMPARE(page->GuestsIn(a), guests.mid(0, 2));
        page->UndoStack()->redo();
        QCOMPARE(GroupInDb(hotel, guests[1]), b);
    }

    // A guest the database does not know refuses the whole drop: nobody moves.
    void unknownGuestMovesNobody_data() { boards_data(); }
    void unknownGuestMovesNobody() {
        QFETCH(bool, hotel);
        const QString a = AddGroup(hotel, 1, "Harbourview");
        const QStringList guests = AddGuests(1);
        auto page = MakeBoard(hotel);
        QVERIFY(!page->AssignGuests(a, {guests[0], "999"}));
        QCOMPARE(GroupInDb(hotel, guests[0]), QString());
        QCOMPARE(page->ListedIds(), guests);
        QCOMPARE(db->Messages().Prompts.size(), 1);
    }

    // A box dropped beyond any edge lands inside the picture, and the database keeps where.
    void boxKeptInside_data() {
        QTest::addColumn<bool>("hotel");
        QTest::addColumn<QPointF>("dropAt");
        QTest::addColumn<QPointF>("expectedPixels");
        const QSizeF box = usrTravelBox::Size();
        const QSizeF map(frmMain_04_Attendees_Hotels::MapSize());
        QTest::newRow("hotel beyond bottom right")
            << true << QPointF(5000, 5000) << QPointF(map.width() - box.width(), map.height() - box.height());
        QTest::newRow("hotel above the left edge") << true << QPointF(-40, -3) << QPointF(0, 0);
        QTest::newRow("hotel inside") << true << QPointF(100, 120) << QPointF(100, 120);
        QTest::newRow("flight beyond the bottom")
            << false << QPointF(20, 9000) << QPointF(20, map.height() - box.height());
    }
    void boxKeptInside() {
        QFETCH(bool, hotel);
        QFETCH(QPointF, dropAt);
        QFETCH(QPointF, expectedPixels);
        const QString a = AddGroup(hotel, 1, "Harbourview");
        auto page = MakeBoard(hotel);
        QVERIFY(page->DropBox(a, dropAt, QPointF(0, 0)));
        const int twips = clsDINING_TABLE::TwipsPerPixel;
        QCOMPARE(PositionInDb(hotel, a), QStringLiteral("%1,%2")
                                             .arg(qRound(expectedPixels.x() * twips))
                                             .arg(qRound(expectedPixels.y() * twips)));
        QCOMPARE(page->Box(a)->pos(), expectedPixels);
    }

    // The arrow keys move the selected box a pixel, never off the picture, each press one step to undo.
    void arrowKeysMoveTheSelectedBox_data() { boards_data(); }
    void arrowKeysMoveTheSelectedBox() {
        QFETCH(bool, hotel);
        const QString a = AddGroup(hotel, 1, "Harbourview");
        auto page = MakeBoard(hotel);
        QVERIFY(page->DropBox(a, QPointF(10, 0), QPointF(0, 0)));
        page->SelectGroup(a);
        auto* view = Child<QWidget>(page.get(), "picMap");
        QTest::keyClick(view, Qt::Key_Right);
        QTest::keyClick(view, Qt::Key_Up); // already at the top: stays
        QTest::keyClick(view, Qt::Key_Down);
        const int twips = clsDINING_TABLE::TwipsPerPixel;
        QCOMPARE(PositionInDb(hotel, a), QStringLiteral("%1,%2").arg(11 * twips).arg(twips));
        page->UndoStack()->undo();
        QCOMPARE(PositionInDb(hotel, a), QStringLiteral("%1,0").arg(11 * twips));
    }

    // "Print reports" opens the board's section of the report screen; the hotels write their map first.
    void printReports_data() {
        QTest::addColumn<bool>("hotel");
        QTest::addColumn<int>("section");
        QTest::newRow("hotels") << true << int(clsReportCatalogue::Hotels);
        QTest::newRow("flights") << false << int(clsReportCatalogue::Flights);
    }
    void printReports() {
        QFETCH(bool, hotel);
        QFETCH(int, section);
        QList<int> asked;
        modPages::RegisterReports([&asked](QWidget*, int key, int row) { asked = {key, row}; });
        auto page = MakeBoard(hotel);
        usrHyperlink* print = nullptr;
        for (usrHyperlink* link : page->findChildren<usrHyperlink*>())
            if (link->Caption() == QLatin1String("Print reports"))
                print = link;
        QVERIFY(print);
        QTest::mouseClick(print, Qt::LeftButton);
        modPages::Clear();
        QCOMPARE(asked, (QList<int>{section, 1}));
        QCOMPARE(QFileInfo::exists(gApp().ReportPath() + "/HotelMap.bmp"), hotel);
    }

    // A hotel or flight added by its editor gets its box where no other box stands.
    void newBoxFindsAFreePlace_data() { boards_data(); }
    void newBoxFindsAFreePlace() {
        QFETCH(bool, hotel);
        const QString first = AddGroup(hotel, 1, "Harbourview");
        auto page = MakeBoard(hotel);
        const QString second = AddGroup(hotel, 2, "Vendue");
        page->mfrmGroup_Added(second);
        QVERIFY(PositionInDb(hotel, second) != PositionInDb(hotel, first));
        QVERIFY(!page->Box(second)->sceneBoundingRect().intersects(page->Box(first)->sceneBoundingRect()));
        QVERIFY(page->Board()->sceneRect().contains(page->Box(second)->sceneBoundingRect()));
        QCOMPARE(page->SelectedGroupId(), second);
    }

    // Deleting a flight returns its passengers to the list at once.
    void deletedFlightReturnsPassengers() {
        const QString flight = AddFlight(1, "United 88");
        const QStringList guests = AddGuests(2);
        for (const QString& id : guests)
            TestDatabase::Exec("UPDATE CONTACT SET FLIGHT_ID = 1 WHERE CONTACT_ID = ?", {id});
        frmMain_04_Attendees_Flights page;
        QCOMPARE(page.ListedIds(), QStringList());
        page.SelectGroup(flight);
        db->Messages().NextAnswer = Msg::Yes;
        page.DeleteSelected();
        QCOMPARE(db->Messages().Prompts, QStringList{"Delete flight: United 88?"});
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM FLIGHT"), QStringLiteral("0"));
        QCOMPARE(page.ListedIds(), guests);
        QCOMPARE(page.Box(flight), nullptr);
    }

    // A hotel with an empty name shows its number alone; the box counts its guests, and with more guests
    // than rooms says so in red.
    void hotelNodesAndRoomCount() {
        TestDatabase::Exec("INSERT INTO HOTEL (HOTEL_ID, HOTEL_NB, HOTEL_NM, ROOMS_NB, POS_X, POS_Y) "
                           "VALUES (4, 7, '', 2, 0, 0)");
        const QStringList guests = AddGuests(3);
        frmMain_04_Attendees_Hotels page;
        QCOMPARE(Child<QTreeWidget>(page, "tvw")->topLevelItem(0)->text(0), QStringLiteral("7"));
        QCOMPARE(page.Box("4")->toolTip(), QStringLiteral("# of Rooms: 2"));
        page.AssignGuests("4", guests.mid(0, 2));
        QVERIFY(!page.Box("4")->IsOverfull());
        QCOMPARE(page.Box("4")->CountText(), QStringLiteral("2 guests"));
        page.AssignGuests("4", {guests[2]});
        QVERIFY(page.Box("4")->IsOverfull());
        QCOMPARE(page.Box("4")->CountText(), QStringLiteral("3 guests in 2 rooms"));
    }

    // The captured map is the board; leaving writes the map with its boxes for the reports.
    void mapBehindTheHotels() {
        AddHotel(1, "Harbourview");
        gApp().MakeReportPath();
        QImage map(300, 200, QImage::Format_RGB32);
        map.fill(Qt::darkGreen);
        QVERIFY(map.save(gApp().ReportPath() + "/Map.bmp"));
        frmMain_04_Attendees_Hotels page;
        QCOMPARE(page.Board()->sceneRect().size(), QSizeF(300, 200));
        page.Leaving();
        const QImage written(gApp().ReportPath() + "/HotelMap.bmp");
        QCOMPARE(written.size(), QSize(300, 200));
        QCOMPARE(written.pixelColor(299, 199), QColor(Qt::darkGreen));
        QVERIFY(written.pixelColor(10, 10) != QColor(Qt::darkGreen)); // the box at the top left
    }

    // "Save and New" saves and starts the next hotel with a fresh number.
    void hotelSaveAndNew() {
        AddHotel(1, "Harbourview");
        frmHotel editor{QString()};
        QStringList added;
        connect(&editor, &frmEditorBase::Added, this, [&](const QString& key) { added << key; });
        auto* number = Child<QLineEdit>(editor, "txt_0");
        QCOMPARE(number->text(), QStringLiteral("2"));
        Child<QLineEdit>(editor, "txt_1")->setText("Vendue");
        QTest::mouseClick(Child<QPushButton>(editor, "cmdSaveNew"), Qt::LeftButton);
        QCOMPARE(added, QStringList{"2"});
        QCOMPARE(number->text(), QStringLiteral("3"));
        QCOMPARE(Child<QLineEdit>(editor, "txt_1")->text(), QString());
        QVERIFY(!Child<QPushButton>(editor, "cmdSave")->isEnabled());
        QCOMPARE(TestDatabase::Scalar("SELECT HOTEL_NM FROM HOTEL WHERE HOTEL_NB = 2"),
                 QStringLiteral("Vendue"));
    }

    // A flight that lands before it leaves is refused and nothing is saved.
    void flightTimes_data() {
        QTest::addColumn<int>("minutesInAir");
        QTest::addColumn<bool>("saved");
        QTest::newRow("lands before it leaves") << -30 << false;
        QTest::newRow("lands at once") << 0 << true;
        QTest::newRow("two hours") << 120 << true;
    }
    void flightTimes() {
        QFETCH(int, minutesInAir);
        QFETCH(bool, saved);
        frmFlight editor{QString()};
        Child<QLineEdit>(editor, "txt_1")->setText("Delta 12");
        Child<QLineEdit>(editor, "txt_2")->setText("ATL");
        Child<QLineEdit>(editor, "txt_3")->setText("CHS");
        const QDateTime leaves(QDate(2027, 6, 4), QTime(9, 15));
        Child<QDateTimeEdit>(editor, "dtp_0")->setDateTime(leaves);
        Child<QDateTimeEdit>(editor, "dtp_1")->setDateTime(leaves.addSecs(minutesInAir * 60));
        QCOMPARE(editor.Save(), saved);
        QCOMPARE(db->Messages().Prompts,
                 saved ? QStringList() : QStringList{frmFlight::ArrivesBeforeDepartsMessage()});
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM FLIGHT"),
                 saved ? QStringLiteral("1") : QStringLiteral("0"));
        if (saved)
            QCOMPARE(gDB().ExecuteRaw("SELECT DEPARTS_DT FROM FLIGHT").Scalar(),
                     QStringLiteral("2027-06-04 09:15:00"));
    }
};

QTEST_MAIN(tst_TravelBoards)
#include "tst_TravelBoards.moc"
