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

    // ---- Rules of the table dialogs; each throws clsDbError with the words the user reads ----
    // New tables stand in rows of this many, this many pixels apart, from the top left of the floor.
    static constexpr int TablesPerRow = 12;
    static constexpr int TablePitchPixels = 32;
    // Positions are kept in twips; the floor is drawn at this many twips to the pixel.
    static constexpr int TwipsPerPixel = 15;
    // Refuses a number that is not a whole number above 0, or that another table (not ownKey) has.
    static void CheckNumber(const QString& number, const QString& ownKey = QString());
    // Adds count tables shaped, seated and (for a single table) numbered and labelled like the model;
    // more than one take the next free numbers and no label. They go in rows across the floor, the
    // place given in twips. All or nothing; the new keys in order.
    static QStringList AddTables(int count, const clsDINING_TABLE& model);
    // Saves an edited table after the number check.
    void SaveEdited();
    // The two tables exchange their guests (and the guests' tent cards) and their labels; numbers,
    // shapes and seats stay. No seat check: a table may end up over-full. All or nothing.
    static void SwapTables(const QString& firstKey, const QString& secondKey);
};
