#pragma once

#include "TestDatabase.h"
#include "seating/clsDINING_TABLE.h"

#include <QStringList>
#include <sqlite3.h>

// Tables and attending guests for the seating tests, and where the database says they sit.
namespace SeatingTestData {

// Another program writing to the test's database while the object lives: it holds the write lock, and the
// program's own connection waits only briefly for it, so that a save is refused as "in use".
class OtherWriter {
public:
    OtherWriter() {
        sqlite3_open(qPrintable(gDB().DatabasePath), &mOther);
        Locked = sqlite3_exec(mOther, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) == SQLITE_OK;
        gDB().SetBusyTimeout(20);
    }
    ~OtherWriter() {
        sqlite3_exec(mOther, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close(mOther);
        gDB().SetBusyTimeout(clsDB::BusyTimeoutMs);
    }
    OtherWriter(const OtherWriter&) = delete;
    OtherWriter& operator=(const OtherWriter&) = delete;
    bool Locked = false;

private:
    sqlite3* mOther = nullptr;
};

inline QString AddTable(const QString& number, int seats, int x = 0, int y = 0,
                        const QString& shape = QStringLiteral("1")) {
    clsDINING_TABLE table;
    table.DINING_TABLE_NB = number;
    table.SEATS_NB = QString::number(seats);
    table.POS_X = QString::number(x);
    table.POS_Y = QString::number(y);
    table.DINING_TABLE_TYPE_ID = shape;
    table.Save(true);
    return table.DINING_TABLE_ID;
}

// Attending guests from key `first` on, named so that a list by name keeps them in key order.
inline QStringList AddGuests(int count, int first = 10) {
    QStringList ids;
    for (int id = first; id < first + count; ++id) {
        TestDatabase::Exec(
            "INSERT INTO CONTACT (CONTACT_ID, FIRST_NM, LAST_NM, ATTENDING_FG) VALUES (?, 'Ann', ?, 'Y')",
            {id, QStringLiteral("Guest%1").arg(id, 4, 10, QLatin1Char('0'))});
        ids << QString::number(id);
    }
    return ids;
}

inline void SeatInDb(const QStringList& ids, const QString& table) {
    for (const QString& id : ids)
        TestDatabase::Exec("UPDATE CONTACT SET DINING_TABLE_ID = ? WHERE CONTACT_ID = ?", {table, id});
}

inline QString TableOf(const QString& contactId) {
    return TestDatabase::Scalar("SELECT DINING_TABLE_ID FROM CONTACT WHERE CONTACT_ID = ?", {contactId});
}

// The guests of the table by name.
inline QStringList SeatedInDb(const QString& table) {
    QStringList ids;
    const clsRecordset rs =
        gDB().Execute("SELECT CONTACT_ID FROM CONTACT WHERE DINING_TABLE_ID = ? ORDER BY LAST_NM", {table});
    for (int row = 0; row < rs.RowCount(); ++row)
        ids << rs.Row(row).value(0);
    return ids;
}

} // namespace SeatingTestData
