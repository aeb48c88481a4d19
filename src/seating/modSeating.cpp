#include "seating/modSeating.h"

#include "core/RecordIO.h"
#include "core/clsDB.h"
#include "guests/clsCONTACT.h"

#include <QPoint>
#include <algorithm>

namespace modSeating {

namespace {

QString TableNotFound(const QString& tableId) {
    return QStringLiteral("There is no dining table with the key %1.").arg(tableId);
}

Seats SeatsAtTables(const QString& where, const QVariantList& values = {}) {
    Seats seats;
    const clsRecordset rs = gDB().Execute(
        QStringLiteral("SELECT CONTACT_ID, DINING_TABLE_ID FROM CONTACT WHERE ") + where, values);
    for (int row = 0; row < rs.RowCount(); ++row)
        seats.insert(rs.Row(row).value(0), rs.Row(row).value(1));
    return seats;
}

// Where each of the people sits now, read at once; a key that is no contact throws.
Seats CurrentSeats(const QStringList& contactIds) {
    QVariantList keys(contactIds.cbegin(), contactIds.cend());
    const QString marks = QStringList(contactIds.size(), QStringLiteral("?")).join(QLatin1Char(','));
    const Seats seats = SeatsAtTables(QStringLiteral("CONTACT_ID IN (") + marks + QLatin1Char(')'), keys);
    for (const QString& id : contactIds) {
        if (!seats.contains(id))
            throw clsDbError(QStringLiteral("There is no contact with the key %1.").arg(id), 0);
    }
    return seats;
}

void WriteSeat(const QString& contactId, const QString& tableId) {
    gDB().Execute(QStringLiteral("UPDATE CONTACT SET DINING_TABLE_ID = ? WHERE CONTACT_ID = ?"),
                  {RecordIO::ToDbValue(QStringLiteral("DINING_TABLE_ID"), tableId), contactId});
}

} // namespace

QString FullMessage(const clsDINING_TABLE& table) {
    return QStringLiteral("Table #") + table.DINING_TABLE_NB + QStringLiteral(" is full.") +
           QStringLiteral("\n\n") + QStringLiteral("All ") + table.SEATS_NB +
           QStringLiteral(" seats are taken.");
}

QString OnlySeatsMessage(long freeSeats) {
    const bool one = freeSeats == 1;
    return QStringLiteral("There ") + (one ? QStringLiteral("is") : QStringLiteral("are")) +
           QStringLiteral(" only ") + QString::number(freeSeats) + QStringLiteral(" seat") +
           (one ? QString() : QStringLiteral("s")) + QStringLiteral(" available.");
}

QString StatusText(const clsDINING_TABLE& table, long taken) {
    return QStringLiteral("Table #%1: %2 of %3 seats taken")
        .arg(table.DINING_TABLE_NB)
        .arg(taken)
        .arg(table.SEATS_NB);
}

SeatResult SeatContacts(const QString& tableId, const QStringList& contactIds) {
    SeatResult result;
    clsTransaction tx(gDB());
    clsDINING_TABLE table;
    if (!table.OpenRecord(tableId))
        throw clsDbError(TableNotFound(tableId), 0);
    const Seats before = CurrentSeats(contactIds);
    QStringList newcomers;
    for (auto it = before.cbegin(); it != before.cend(); ++it) {
        if (it.value() != tableId)
            newcomers << it.key();
    }
    const long free = table.GetTotal(clsDINING_TABLE::SeatsFree);
    if (newcomers.size() > free) {
        result.Message = free <= 0 ? FullMessage(table) : OnlySeatsMessage(free);
        return result;
    }
    for (const QString& id : newcomers) {
        WriteSeat(id, tableId);
        result.Previous.insert(id, before.value(id));
    }
    tx.Commit();
    result.Seated = true;
    return result;
}

Seats Unseat(const QStringList& contactIds) {
    clsTransaction tx(gDB());
    const Seats before = CurrentSeats(contactIds);
    for (const QString& id : contactIds)
        WriteSeat(id, QString());
    tx.Commit();
    return before;
}

void RestoreSeats(const Seats& seats) {
    clsTransaction tx(gDB());
    for (auto it = seats.cbegin(); it != seats.cend(); ++it)
        WriteSeat(it.key(), it.value());
    tx.Commit();
}

QPoint PlaceTable(const TablePlacement& place) {
    int left = place.X - place.GrabX;
    int top = place.Y - place.GrabY;
    left = std::max(left, 0);
    top = std::max(top, 0);
    if (left + place.Width > place.FloorWidth)
        left = std::max(place.FloorWidth - place.Width, 0);
    if (top + place.Height > place.FloorHeight)
        top = std::max(place.FloorHeight - place.Height, 0);
    if (place.Dropped && place.ShapeType == 3)
        left = std::max(left - 2 * kTwipsPerPixel, 0);
    if (place.Dropped && place.ShapeType == 4)
        top = std::max(top - 2 * kTwipsPerPixel, 0);
    return {left, top};
}

void MoveTable(const QString& tableId, const QPoint& topLeft) {
    clsTransaction tx(gDB());
    clsDINING_TABLE table;
    if (!table.OpenRecord(tableId))
        throw clsDbError(TableNotFound(tableId), 0);
    table.POS_X = QString::number(topLeft.x());
    table.POS_Y = QString::number(topLeft.y());
    table.Save(false);
    tx.Commit();
}

QHash<QString, long> SeatsTakenByTable() {
    QHash<QString, long> taken;
    const clsRecordset rs =
        gDB().Execute(QStringLiteral("SELECT DINING_TABLE_ID, COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID Is "
                                     "Not Null GROUP BY DINING_TABLE_ID"));
    for (int row = 0; row < rs.RowCount(); ++row)
        taken.insert(rs.Row(row).value(0), rs.Row(row).value(1).toLong());
    return taken;
}

Seats EmptyTable(const QString& tableId) {
    clsTransaction tx(gDB());
    const Seats before = SeatsAtTables(QStringLiteral("DINING_TABLE_ID = ?"), {tableId});
    clsCONTACT::Update_DINING_TABLE_ID_TO_NULL(tableId);
    tx.Commit();
    return before;
}

Seats EmptyAllTables() {
    clsTransaction tx(gDB());
    const Seats before = SeatsAtTables(QStringLiteral("DINING_TABLE_ID Is Not Null"));
    for (const clsDINING_TABLE& table : clsDINING_TABLE::OpenRecords())
        clsCONTACT::Update_DINING_TABLE_ID_TO_NULL(table.DINING_TABLE_ID);
    tx.Commit();
    return before;
}

void DeleteAllTables() {
    clsTransaction tx(gDB());
    for (clsDINING_TABLE& table : clsDINING_TABLE::OpenRecords())
        table.Delete(table.DINING_TABLE_ID);
    tx.Commit();
}

} // namespace modSeating
