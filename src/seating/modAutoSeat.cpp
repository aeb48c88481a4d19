#include "seating/modAutoSeat.h"

#include "core/FilterCode.h"
#include "guests/clsCONTACT.h"
#include "seating/clsSEATING_RULE.h"

#include <QSet>

namespace modAutoSeat {

namespace {

// Seats taken by people who are not attending (a hand-made seat the seater does not move), by table.
QHash<QString, int> SeatsOfOthers() {
    QHash<QString, int> taken;
    const clsRecordset rs = gDB().Execute(
        QStringLiteral("SELECT DINING_TABLE_ID, COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID Is Not Null AND "
                       "COALESCE(ATTENDING_FG, 'N') <> 'Y' GROUP BY DINING_TABLE_ID"));
    for (int row = 0; row < rs.RowCount(); ++row)
        taken.insert(rs.Value(row, 0), rs.Value(row, 1).toInt());
    return taken;
}

void ReadRules(SeatingInstance& instance, const QSet<QString>& attending) {
    // A file the update has not reached yet (opened only to read) has no rules.
    if (!gDB().TableExists(QStringLiteral("SEATING_RULE")))
        return;
    for (const clsSEATING_RULE& rule : clsSEATING_RULE::OpenRecords()) {
        const bool first = attending.contains(rule.CONTACT_ID),
                   other = attending.contains(rule.OTHER_CONTACT_ID);
        if (first && other) {
            instance.Rules.append({rule.CONTACT_ID, rule.OTHER_CONTACT_ID,
                                   rule.RULE_CD == clsSEATING_RULE::KeepApart, rule.WEIGHT_NB.toInt()});
            continue;
        }
        const QString absent = first   ? rule.OTHER_CONTACT_NM
                               : other ? rule.CONTACT_NM
                                       : rule.CONTACT_NM + QStringLiteral(" and ") + rule.OTHER_CONTACT_NM;
        instance.IgnoredRules << QStringLiteral("The rule \"%1\" was ignored: %2 %3 not attending.")
                                     .arg(rule.Caption(), absent,
                                          first || other ? QStringLiteral("is") : QStringLiteral("are"));
    }
}

// A guest without a name of their own is named by the host.
QString NameOf(const clsCONTACT& c) {
    return c.IsAnonymousGuest() ? QStringLiteral("the guest of ") + c.GUEST_OF_FULL_NM().trimmed()
                                : c.FirstLast().trimmed();
}

} // namespace

QString NoTablesMessage() {
    return QStringLiteral(
        "There are no tables to seat the guests at. Add the tables first (\"Add new table\" on "
        "the table layout, or vowren-cli tables --add N).");
}

SeatingInstance ReadInstance() {
    SeatingInstance instance;
    const QHash<QString, int> others = SeatsOfOthers();
    for (const clsDINING_TABLE& table : clsDINING_TABLE::OpenRecords())
        instance.Tables.append({table.DINING_TABLE_ID, table.DINING_TABLE_NB, table.SEATS_NB.toInt(),
                                others.value(table.DINING_TABLE_ID)});
    QSet<QString> attending;
    for (const clsCONTACT& c : clsCONTACT::OpenRecords(ContactFilter::Attending)) {
        instance.People.append(
            {c.CONTACT_ID, NameOf(c), c.INVITE_ID, c.GUEST_OF_ID, c.FRIEND_OF_CD.toInt(), c.DINING_TABLE_ID});
        attending.insert(c.CONTACT_ID);
    }
    ReadRules(instance, attending);
    return instance;
}

SeatingChart Propose(const SeaterOptions& options) {
    const SeatingInstance instance = ReadInstance();
    if (instance.Tables.isEmpty())
        throw clsDbError(NoTablesMessage(), 0);
    return clsSeater(instance).Run(options);
}

SeatingChart MeasureCurrent() {
    return clsSeater(ReadInstance()).Measure();
}

SeatChanges Changes(const SeatingChart& chart) {
    SeatChanges changes;
    const clsRecordset rs = gDB().Execute(QStringLiteral("SELECT CONTACT_ID, DINING_TABLE_ID FROM CONTACT"));
    for (int row = 0; row < rs.RowCount(); ++row) {
        const QString id = rs.Value(row, 0);
        const auto seat = chart.Seats.constFind(id);
        if (seat == chart.Seats.constEnd() || *seat == rs.Value(row, 1))
            continue;
        changes.Before.insert(id, rs.Value(row, 1));
        changes.After.insert(id, *seat);
    }
    return changes;
}

modSeating::Seats Apply(const SeatingChart& chart) {
    clsTransaction tx(gDB());
    const SeatChanges changes = Changes(chart);
    modSeating::RestoreSeats(changes.After);
    tx.Commit();
    return changes.Before;
}

} // namespace modAutoSeat
