#pragma once

#include "core/RecordIO.h"

#include <QList>
#include <QString>

// A table of the reception. Seating is nothing more than CONTACT.DINING_TABLE_ID pointing here.
class clsDINING_TABLE {
public:
    QString DINING_TABLE_ID;
    QString DINING_TABLE_NB; // the number the guests see
    QString DINING_TABLE_NM; // a label, may be empty
    QString SEATS_NB;
    QString POS_X; // position on the floor, in twips
    QString POS_Y;
    QString DINING_TABLE_TYPE_ID; // the shape, "1" to "4"

    // What GetTotal counts.
    enum TotalKind : int {
        TotalTables = 0, // tables in the room
        SeatsFree = 1,   // seats of this table less the guests seated at it (below 0 when over-full)
        SeatsTaken = 2,  // guests seated at this table, attending or not
    };

    static const RecordTable<clsDINING_TABLE>& Table();

    // The guests seated at the table go back to the unseated list, its tent cards (which only describe
    // that seating) go, then the table itself; all or nothing. Like every operation here, throws
    // clsDbError on a failure.
    void Delete(const QString& key);
    // Reads DINING_TABLE_ID and SEATS_NB of this object for the per-table kinds.
    long GetTotal(int kind) const;
    // The highest table number + 1 ("1" for an empty room); gaps left by deletes stay.
    static QString NEXT_NB();
    // By key, else by table number; with both empty nothing happens. False when there is no such table.
    bool OpenRecord(const QString& key, const QString& number = QString());
    // Every table in number order.
    static QList<clsDINING_TABLE> OpenRecords();
    // Whether a column of DINING_TABLE exists.
    static bool Patch_Field_Exists(const QString& column);
    // Adds the shape column to an old table; every existing table becomes shape 1.
    static bool Patch_6_Apply();
    void Save(bool insert);
};
