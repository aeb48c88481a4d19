#pragma once

#include "seating/clsDINING_TABLE.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

// Who sits where. Seating is CONTACT.DINING_TABLE_ID and nothing else; these are the rules for
// changing it, each one transaction that throws clsDbError when the database refuses, so the floor
// plan and the command line seat guests the same way.
namespace modSeating {

// Positions on the floor are kept in twips; the floor is drawn at this many twips to the pixel.
inline constexpr int kTwipsPerPixel = clsDINING_TABLE::TwipsPerPixel;
// The pitch of new tables and of the floor's grid.
inline constexpr int kCellPixels = 32;
// A table dropped on the floor is taken by the middle of a cell.
inline constexpr int kDropGrabTwips = kCellPixels * kTwipsPerPixel / 2;

// The seats of a contact before a change: contact id -> table id ("" for unseated).
using Seats = QMap<QString, QString>;

// What became of a request to seat people at a table.
struct SeatResult {
    bool Seated = false;
    QString Message; // why nothing happened; empty when seated
    Seats Previous;  // where the people sat before, for undoing
};

// "Table #7 is full." + blank line + "All 8 seats are taken."
QString FullMessage(const clsDINING_TABLE& table);
// "There is only 1 seat available." / "There are only 3 seats available."
QString OnlySeatsMessage(long freeSeats);
// "Table #7: 5 of 8 seats taken"
QString StatusText(const clsDINING_TABLE& table, long taken);

// Seats every contact at the table, or none of them when they do not all fit (the message says why).
// People who already sit there need no new seat. An unknown contact or table throws.
SeatResult SeatContacts(const QString& tableId, const QStringList& contactIds);
// Sends the people back to the unseated list; gives where they sat.
Seats Unseat(const QStringList& contactIds);
// Puts every contact back where the map says, without any seat check (undo and redo).
void RestoreSeats(const Seats& seats);

// Where a table lands, in twips, when it is dropped at a point or moved by the keys.
struct TablePlacement {
    int X = 0, Y = 0;          // the drop point, or the new top left for the keys
    int GrabX = 0, GrabY = 0;  // where the table was held, from its top left
    int Width = 0, Height = 0; // the table
    int FloorWidth = 0, FloorHeight = 0;
    int ShapeType = 1;
    bool Dropped = true; // a drop corrects for the shape; a key step does not
};
// The table's new top left: never off the floor, and for a drop moved by the shape's own margin
// (shape 3 two pixels left, shape 4 two pixels up, never below 0).
QPoint PlaceTable(const TablePlacement& place);
// Saves the table's position (twips).
void MoveTable(const QString& tableId, const QPoint& topLeft);

// The seats taken at each table that has guests, by table id (every contact counts, as GetTotal does).
QHash<QString, long> SeatsTakenByTable();

// Every guest of the table back to the unseated list; gives where they sat.
Seats EmptyTable(const QString& tableId);
// Every table emptied, in one step.
Seats EmptyAllTables();
// Every table deleted, its guests unseated; all or nothing.
void DeleteAllTables();

} // namespace modSeating
