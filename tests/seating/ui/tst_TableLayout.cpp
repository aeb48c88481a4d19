#include "TestDatabase.h"
#include "UiTestTools.h"
#include "core/ShowMessage.h"
#include "reports/clsReportCatalogue.h"
#include "seating/SeatingTestData.h"
#include "seating/modSeating.h"
#include "seating/ui/GuestDropTools.h"
#include "seating/ui/frmMain_04_Attendees_Tables.h"
#include "seating/ui/usrDiningTable.h"
#include "shell/controls/usrHyperlink.h"
#include "shell/modPages.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QGraphicsView>
#include <QImage>
#include <QLabel>
#include <QMimeData>
#include <QTreeWidget>
#include <QUndoStack>
#include <QtTest>
#include <memory>
#include <sqlite3.h>

using namespace SeatingTestData;
using UiTestTools::Child;

namespace {

QStringList UnseatedInDb() {
    QStringList ids;
    const clsRecordset rs =
        gDB().Execute("SELECT CONTACT_ID FROM CONTACT WHERE ATTENDING_FG = 'Y' AND DINING_TABLE_ID Is Null "
                      "ORDER BY LAST_NM COLLATE NOCASE, FIRST_NM COLLATE NOCASE");
    for (int row = 0; row < rs.RowCount(); ++row)
        ids << rs.Row(row).value(0);
    return ids;
}

QString PositionInDb(const QString& table) {
    return TestDatabase::Scalar("SELECT POS_X || ',' || POS_Y FROM DINING_TABLE WHERE DINING_TABLE_ID = ?",
                                {table});
}

} // namespace

class tst_TableLayout : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;
    clsCapturingMessageSink* messages = nullptr;

    // The views say what the database says: the list holds the unseated, each node its table's guests.
    static void AgreeWithDatabase(const frmMain_04_Attendees_Tables& page, const QStringList& tables) {
        QCOMPARE(page.UnseatedIds(), UnseatedInDb());
        for (const QString& table : tables)
            QCOMPARE(page.GuestsAt(table), SeatedInDb(table));
    }

private slots:
    void init() {
        db = std::make_unique<TestDatabase>();
        auto sink = std::make_unique<clsCapturingMessageSink>();
        messages = sink.get();
        SetMessageSink(std::move(sink));
        gApp().SetLockTableLayout(false);
    }
    void cleanup() {
        SetMessageSink(nullptr);
        db.reset();
    }

    // Seating by drop: all or none, in both message forms and the full one; undo and redo of a seating.
    void seatByDrop_data() {
        QTest::addColumn<int>("seats");
        QTest::addColumn<int>("alreadySeated");
        QTest::addColumn<int>("selected");
        QTest::addColumn<QString>("message");
        QTest::newRow("fits") << 8 << 5 << 3 << QString();
        QTest::newRow("one seat for two") << 8 << 7 << 2 << "There is only 1 seat available.";
    }
    void seatByDrop() {
        QFETCH(int, seats);
        QFETCH(int, alreadySeated);
        QFETCH(int, selected);
        QFETCH(QString, message);
        const QString table = AddTable("3", seats);
        SeatInDb(AddGuests(alreadySeated, 100), table);
        const QStringList chosen = AddGuests(selected);
        frmMain_04_Attendees_Tables page;

        const bool seated = page.SeatGuests(table, chosen);

        QCOMPARE(seated, message.isEmpty());
        QCOMPARE(messages->Prompts, message.isEmpty() ? QStringList() : QStringList{message});
        AgreeWithDatabase(page, {table});
        QCOMPARE(SeatedInDb(table).size(), alreadySeated + (seated ? selected : 0));
        if (!seated) {
            QCOMPARE(page.UndoStack()->count(), 0);
            return;
        }
        QCOMPARE(page.SelectedTableId(), table);
        QCOMPARE(page.StatusLine(),
                 QStringLiteral("Table #3: %1 of 8 seats taken").arg(alreadySeated + selected));
        page.UndoStack()->undo();
        QCOMPARE(SeatedInDb(table).size(), alreadySeated);
        AgreeWithDatabase(page, {table});
        QCOMPARE(page.StatusLine(), QStringLiteral("Table #3: %1 of 8 seats taken").arg(alreadySeated));
        page.UndoStack()->redo();
        QCOMPARE(SeatedInDb(table).size(), alreadySeated + selected);
        AgreeWithDatabase(page, {table});
    }

    // A guest dragged from one table's node to another's, through the tree's own drop.
    void moveBetweenTablesThroughTheTree() {
        const QString a = AddTable("1", 8);
        const QString b = AddTable("2", 8);
        const QStringList guests = AddGuests(2);
        SeatInDb(guests, a);
        frmMain_04_Attendees_Tables page;
        page.resize(1200, 800);
        page.show();
        auto* tree = Child<QTreeWidget>(page, "tvw");
        QTreeWidgetItem* target = tree->topLevelItem(1);
        QCOMPARE(target->text(0), QStringLiteral("2"));
        DropGuests(tree->viewport(), tree->visualItemRect(target).center(), {guests[0]}, true);

        QCOMPARE(TableOf(guests[0]), b);
        AgreeWithDatabase(page, {a, b});
        page.UndoStack()->undo();
        QCOMPARE(TableOf(guests[0]), a);
        AgreeWithDatabase(page, {a, b});
        page.UndoStack()->redo();
        QCOMPARE(TableOf(guests[0]), b);
        AgreeWithDatabase(page, {a, b});
    }

    // From the list onto a table on the floor, and from the tree back onto the list.
    void dropOnTheFloorAndBack() {
        const QString a = AddTable("1", 8, 1500, 1500);
        const QStringList guests = AddGuests(2);
        frmMain_04_Attendees_Tables page;
        page.resize(1200, 800);
        page.show();
        QGraphicsView* floor = page.FloorView();
        const QPoint at = floor->mapFromScene(page.TableItem(a)->sceneBoundingRect().center());
        DropGuests(floor->viewport(), at, guests, false);
        QCOMPARE(SeatedInDb(a), guests);
        AgreeWithDatabase(page, {a});
        auto* list = Child<QTreeWidget>(page, "lvw");
        DropGuests(list->viewport(), QPoint(10, 10), {guests[1]}, true);
        QCOMPARE(SeatedInDb(a), QStringList{guests[0]});
        AgreeWithDatabase(page, {a});
    }

    void printReportsWritesThePictureFirst() {
        AddTable("1", 8);
        int section = 0, row = 0;
        bool pictureThere = false;
        modPages::RegisterReports([&](QWidget*, int s, int r) {
            section = s;
            row = r;
            pictureThere = QFile::exists(gApp().ReportPath() + "/TableLayout.bmp");
        });
        frmMain_04_Attendees_Tables page;
        page.PrintLayout();
        modPages::RegisterReports(nullptr);
        QCOMPARE(section, int(clsReportCatalogue::Tables));
        QCOMPARE(row, 2);
        QVERIFY(pictureThere);
    }

    // What the table dialogs tell the page shows at once: a new table, a changed one, a swap.
    void dialogEventsShowOnThePage() {
        const QString a = AddTable("1", 8);
        const QStringList guests = AddGuests(1);
        SeatInDb(guests, a);
        frmMain_04_Attendees_Tables page;
        const QString b = AddTable("2", 8, 480, 480, "4");
        page.mfrmTable_Added(b);
        QVERIFY(page.TableItem(b));
        QCOMPARE(page.TableItem(b)->pos(), QPointF(32, 32));
        QCOMPARE(Child<QLabel>(page, "lblCount")->text(), QStringLiteral("2"));
        QVERIFY(page.Action(frmMain_04_Attendees_Tables::SwapTables)->isEnabled());

        TestDatabase::Exec("UPDATE DINING_TABLE SET DINING_TABLE_NB = 9, DINING_TABLE_NM = 'Aunts' "
                           "WHERE DINING_TABLE_ID = ?",
                           {b});
        page.mfrmTable_Updated(b);
        QCOMPARE(page.TableItem(b)->Caption(), QStringLiteral("#9"));
        auto* tree = Child<QTreeWidget>(page, "tvw");
        QCOMPARE(tree->topLevelItem(1)->text(0), QStringLiteral("9 - Aunts"));

        clsDINING_TABLE::SwapTables(a, b);
        page.mfrmTableSwap_Swap();
        AgreeWithDatabase(page, {a, b});
        QCOMPARE(page.GuestsAt(b), guests);
    }

    void unseatAndUndo() {
        const QString a = AddTable("1", 8);
        const QStringList guests = AddGuests(3);
        SeatInDb(guests, a);
        frmMain_04_Attendees_Tables page;
        QVERIFY(page.UnseatGuests({guests[0], guests[2]}));
        QCOMPARE(SeatedInDb(a), QStringList{guests[1]});
        AgreeWithDatabase(page, {a});
        QCOMPARE(Child<QLabel>(page, "lblAttendees")->text(),
                 QStringLiteral("Attendees to be seated (%1)").arg(UnseatedInDb().size()));
        page.UndoStack()->undo();
        QCOMPARE(SeatedInDb(a), guests);
        AgreeWithDatabase(page, {a});
        page.UndoStack()->redo();
        QCOMPARE(SeatedInDb(a), QStringList{guests[1]});
    }

    // The keys of the page take a step back and forward again.
    void undoAndRedoKeys() {
        const QString a = AddTable("1", 8);
        const QStringList guests = AddGuests(1);
        frmMain_04_Attendees_Tables page;
        UiTestTools::ShowActive(page);
        QVERIFY(page.SeatGuests(a, guests));
        QTest::keyClick(page.FloorView(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(TableOf(guests[0]), QString());
        QTest::keyClick(page.FloorView(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(TableOf(guests[0]), a);
        AgreeWithDatabase(page, {a});
    }

    // Locked: tables stay where they are and the five table commands are off, but guests are seated.
    void lockKeepsTablesButNotGuests() {
        const QString a = AddTable("1", 8, 300, 300);
        AddTable("2", 8);
        const QStringList guests = AddGuests(1);
        frmMain_04_Attendees_Tables page;
        page.SelectTable(a);
        page.ToggleLock();
        QVERIFY(gApp().LockTableLayout());
        QCOMPARE(page.Action(frmMain_04_Attendees_Tables::LockTableLayout)->Caption(),
                 QStringLiteral("Unlock table layout"));
        for (int i : {0, 1, 2, 3, 4})
            QVERIFY2(!page.Action(i)->isEnabled(), qPrintable(QString::number(i)));
        QVERIFY(!page.DropTable(a, QPointF(200, 200), QPointF(8, 8)));
        QVERIFY(!page.StepSelectedTable(1, 0));
        QCOMPARE(PositionInDb(a), QStringLiteral("300,300"));
        QVERIFY(page.SeatGuests(a, guests));
        page.ToggleLock();
        for (int i : {0, 1, 2, 3, 4})
            QVERIFY(page.Action(i)->isEnabled());
    }

    // Table moves: kept wholly on the floor, saved in twips, one pixel per arrow key, each undoable.
    void tableMoves_data() {
        QTest::addColumn<QString>("shape");
        QTest::addColumn<QPointF>("dropAt");
        QTest::addColumn<QString>("saved");
        QTest::newRow("in the middle") << "1" << QPointF(210, 110) << "3000,1500";
        QTest::newRow("beyond the right edge") << "1" << QPointF(99999, 110) << "QUERY";
    }
    void tableMoves() {
        QFETCH(QString, shape);
        QFETCH(QPointF, dropAt);
        QFETCH(QString, saved);
        const QString table = AddTable("1", 8, 600, 600, shape);
        frmMain_04_Attendees_Tables page;
        usrDiningTable* item = page.TableItem(table);
        QVERIFY(page.DropTable(table, dropAt, QPointF(10, 10)));
        if (saved == QLatin1String("QUERY")) {
            const QRectF box = item->sceneBoundingRect();
            QCOMPARE(box.right(), page.FloorSize().width());
            saved = QStringLiteral("%1,1500").arg(qRound(box.left() * modSeating::kTwipsPerPixel));
        }
        QCOMPARE(PositionInDb(table), saved);
        QCOMPARE(item->pos() * modSeating::kTwipsPerPixel,
                 QPointF(saved.section(',', 0, 0).toDouble(), saved.section(',', 1).toDouble()));
        page.UndoStack()->undo();
        QCOMPARE(PositionInDb(table), QStringLiteral("600,600"));
        QCOMPARE(item->pos(), QPointF(40, 40));
    }

    void arrowKeysStepOnePixel() {
        const QString table = AddTable("1", 8, 600, 600);
        frmMain_04_Attendees_Tables page;
        page.SelectTable(table);
        QTest::keyClick(page.FloorView(), Qt::Key_Right);
        QTest::keyClick(page.FloorView(), Qt::Key_Up);
        QCOMPARE(PositionInDb(table), QStringLiteral("615,585"));
        QCOMPARE(page.UndoStack()->count(), 2);
        page.UndoStack()->undo();
        QCOMPARE(PositionInDb(table), QStringLiteral("615,600"));
    }

    void deleteATableWithGuests() {
        const QString a = AddTable("4", 8);
        const QString b = AddTable("5", 8);
        const QStringList guests = AddGuests(2);
        SeatInDb(guests, a);
        frmMain_04_Attendees_Tables page;
        page.SelectTable(a);
        messages->NextAnswer = Msg::No;
        QTest::keyClick(page.FloorView(), Qt::Key_Delete);
        QCOMPARE(messages->Prompts, QStringList{"Delete table #4?"});
        QCOMPARE(SeatedInDb(a), guests);
        messages->NextAnswer = Msg::Yes;
        page.DeleteSelectedTable();
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM DINING_TABLE"), QStringLiteral("1"));
        QVERIFY(!page.TableItem(a));
        QVERIFY(page.UnseatedIds().contains(guests[0]) && page.UnseatedIds().contains(guests[1]));
        AgreeWithDatabase(page, {b});
        QCOMPARE(Child<QLabel>(page, "lblCount")->text(), QStringLiteral("1"));
        QCOMPARE(Child<QLabel>(page, "lblDiningTables")->text(), QStringLiteral("Dining Table"));
    }

    void emptyAndDeleteAll_data() {
        QTest::addColumn<int>("command");
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("tablesLeft");
        QTest::newRow("empty one") << 0 << "Empty table# 1 of all its seated attendees?"
                                   << "2";
        QTest::newRow("empty all") << 1 << "Empty all tables?"
                                   << "2";
        QTest::newRow("delete all") << 2 << "Delete All Tables?"
                                    << "0";
    }
    void emptyAndDeleteAll() {
        QFETCH(int, command);
        QFETCH(QString, question);
        QFETCH(QString, tablesLeft);
        const QString a = AddTable("1", 8);
        const QString b = AddTable("2", 8);
        const QStringList guests = AddGuests(2);
        SeatInDb({guests[0]}, a);
        SeatInDb({guests[1]}, b);
        frmMain_04_Attendees_Tables page;
        page.SelectTable(a);
        messages->NextAnswer = Msg::Yes;
        if (command == 0)
            page.EmptySelectedTable();
        else if (command == 1)
            page.EmptyAllTables();
        else
            page.DeleteAllTables();
        QCOMPARE(messages->Prompts, QStringList{question});
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM DINING_TABLE"), tablesLeft);
        QCOMPARE(TableOf(guests[0]), QString());
        QCOMPARE(TableOf(guests[1]), command == 0 ? b : QString());
        AgreeWithDatabase(page, {a, b});
    }

    // Another program holds the file: the "in use" message, and nobody moves on screen or on disk.
    void aDropWhileTheFileIsLocked() {
        const QString a = AddTable("1", 8);
        const QStringList guests = AddGuests(2);
        frmMain_04_Attendees_Tables page;
        sqlite3* other = nullptr;
        QCOMPARE(sqlite3_open(qPrintable(gDB().DatabasePath), &other), SQLITE_OK);
        QCOMPARE(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
        gDB().SetBusyTimeout(20);
        QVERIFY(!page.SeatGuests(a, guests));
        sqlite3_exec(other, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close(other);
        gDB().SetBusyTimeout(clsDB::BusyTimeoutMs);
        QCOMPARE(messages->Prompts.size(), 1);
        QVERIFY2(messages->Prompts.first().contains("in use"), qPrintable(messages->Prompts.first()));
        QCOMPARE(SeatedInDb(a), QStringList());
        AgreeWithDatabase(page, {a});
        QCOMPARE(page.UndoStack()->count(), 0);
    }

    void revealColoursFreeTables() {
        const QString free = AddTable("1", 2);
        const QString full = AddTable("2", 1);
        SeatInDb(AddGuests(1), full);
        gApp().SetRevealTableStatus(1);
        frmMain_04_Attendees_Tables page;
        QVERIFY(page.TableItem(free)->BackColor().isValid());
        QVERIFY(!page.TableItem(full)->BackColor().isValid());
        QVERIFY(page.SeatGuests(free, AddGuests(2, 50)));
        QVERIFY(!page.TableItem(free)->BackColor().isValid());
        page.UndoStack()->undo();
        QVERIFY(page.TableItem(free)->BackColor().isValid());
        UiTestTools::Toggle(Child<QCheckBox>(page, "chkReveal"));
        QVERIFY(!page.TableItem(free)->BackColor().isValid());
        QCOMPARE(gApp().RevealTableStatus(), 0);
    }

    // The picture of the floor, and a reports folder that can't be written to stops nothing.
    void layoutPicture() {
        AddTable("1", 8, 1500, 1500);
        AddTable("2", 8, 30000, 20000, "3");
        frmMain_04_Attendees_Tables page;
        QVERIFY(page.WriteLayoutPicture());
        const QImage bmp(gApp().ReportPath() + "/TableLayout.bmp");
        const QImage png(gApp().ReportPath() + "/TableLayout.png");
        QVERIFY(!bmp.isNull());
        QVERIFY(bmp.width() <= 960 && bmp.height() <= 720);
        QVERIFY(bmp.width() == 960 || bmp.height() == 720);
        QCOMPARE(png.size(), bmp.size() * 2);

        QFile::remove(gApp().ReportPath() + "/TableLayout.bmp");
        QFile::remove(gApp().ReportPath() + "/TableLayout.png");
        // A file where the folder should be: nothing can be written below it, whoever runs the test.
        QVERIFY(QDir(gApp().ReportPath()).removeRecursively());
        QFile blocker(gApp().ReportPath());
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        QVERIFY(!page.WriteLayoutPicture());
        page.Leaving();
        QCOMPARE(messages->Prompts, QStringList());
    }
};

QTEST_MAIN(tst_TableLayout)
#include "tst_TableLayout.moc"
