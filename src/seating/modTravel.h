#pragma once

#include <QMap>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>

// Who stays where and who flies how. A guest's hotel is CONTACT.HOTEL_ID, a guest's flight
// CONTACT.FLIGHT_ID; these rules change them for many guests at once, each in one transaction that
// throws clsDbError when the database refuses, so the boards and the command line do it alike.
namespace modTravel {

enum class Kind { Hotel, Flight };

// Contact id -> hotel or flight id ("" for none).
using Assignments = QMap<QString, QString>;

// Puts every contact into the hotel or onto the flight ("" sends them back to the list); gives where
// they were before, for undoing. An unknown contact, hotel or flight throws and nothing changes.
Assignments Assign(Kind kind, const QStringList& contactIds, const QString& groupId);
// Puts every contact back where the map says.
void Restore(Kind kind, const Assignments& assignments);

// The top left of a box of that size moved to a point, kept inside the area: never below 0, never
// beyond the right or bottom edge (a box larger than the area stays at 0).
QPoint KeepInside(const QPoint& topLeft, const QSize& box, const QSize& area);
// Saves the position of the hotel's or flight's box.
void MoveBox(Kind kind, const QString& groupId, const QPoint& topLeft);

// The hotel or flight of the number the user sees ("3"); empty when there is none.
QString KeyOfNumber(Kind kind, const QString& number);

} // namespace modTravel
