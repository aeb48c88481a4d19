#include "seating/modTravel.h"

#include "core/RecordIO.h"
#include "core/clsDB.h"
#include "guests/clsCONTACT.h"

#include <algorithm>

namespace modTravel {

namespace {

QString Table(Kind kind) {
    return kind == Kind::Hotel ? QStringLiteral("HOTEL") : QStringLiteral("FLIGHT");
}

QString Column(Kind kind) {
    return Table(kind) + QStringLiteral("_ID");
}

void Write(Kind kind, const QString& contactId, const QString& groupId) {
    if (kind == Kind::Hotel)
        clsCONTACT::UpdateHotel(contactId, groupId);
    else
        clsCONTACT::UpdateFlight(contactId, groupId);
}

// Where each of the people is now, read at once; a key that is no contact throws.
Assignments Current(Kind kind, const QStringList& contactIds) {
    const QVariantList keys(contactIds.cbegin(), contactIds.cend());
    const QString marks = QStringList(contactIds.size(), QStringLiteral("?")).join(QLatin1Char(','));
    const clsRecordset rs = gDB().Execute(
        QStringLiteral("SELECT CONTACT_ID, %1 FROM CONTACT WHERE CONTACT_ID IN (").arg(Column(kind)) + marks +
            QLatin1Char(')'),
        keys);
    Assignments now;
    for (int row = 0; row < rs.RowCount(); ++row)
        now.insert(rs.Row(row).value(0), rs.Row(row).value(1));
    for (const QString& id : contactIds) {
        if (!now.contains(id))
            throw clsDbError(QStringLiteral("There is no contact with the key %1.").arg(id), 0);
    }
    return now;
}

void RequireGroup(Kind kind, const QString& groupId) {
    const QString found =
        gDB()
            .Execute(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 = ?").arg(Table(kind), Column(kind)),
                     {groupId})
            .Scalar();
    if (found.toInt() == 0)
        throw clsDbError(
            QStringLiteral("There is no %1 with the key %2.")
                .arg(kind == Kind::Hotel ? QStringLiteral("hotel") : QStringLiteral("flight"), groupId),
            0);
}

} // namespace

Assignments Assign(Kind kind, const QStringList& contactIds, const QString& groupId) {
    if (contactIds.isEmpty())
        return {};
    clsTransaction tx(gDB());
    if (!groupId.isEmpty())
        RequireGroup(kind, groupId);
    const Assignments before = Current(kind, contactIds);
    for (const QString& id : contactIds)
        Write(kind, id, groupId);
    tx.Commit();
    return before;
}

void Restore(Kind kind, const Assignments& assignments) {
    clsTransaction tx(gDB());
    for (auto it = assignments.cbegin(); it != assignments.cend(); ++it)
        Write(kind, it.key(), it.value());
    tx.Commit();
}

QPoint KeepInside(const QPoint& topLeft, const QSize& box, const QSize& area) {
    return {std::clamp(topLeft.x(), 0, std::max(0, area.width() - box.width())),
            std::clamp(topLeft.y(), 0, std::max(0, area.height() - box.height()))};
}

void MoveBox(Kind kind, const QString& groupId, const QPoint& topLeft) {
    gDB().Execute(
        QStringLiteral("UPDATE %1 SET POS_X = ?, POS_Y = ? WHERE %2 = ?").arg(Table(kind), Column(kind)),
        {topLeft.x(), topLeft.y(), groupId});
}

QString KeyOfNumber(Kind kind, const QString& number) {
    return gDB()
        .Execute(QStringLiteral("SELECT %2 FROM %1 WHERE %1_NB = ? ORDER BY %2 LIMIT 1")
                     .arg(Table(kind), Column(kind)),
                 {number})
        .Scalar();
}

} // namespace modTravel
