#pragma once

#include "core/clsDB.h"

// A query of the user's own (the command line's sql, the custom SQL reports): one statement that only
// reads, run on a connection of its own that can't write, and stopped when it runs too long or returns
// too many rows. Transactions, PRAGMA statements and attaching other files are refused as well as writes.
namespace modUserQuery {

struct Limits {
    int TimeoutMs = 30000;
    qint64 MaxRows = 1000000;
};

// Why the statement is refused, or "" when it may run. The connection must be open.
QString Refusal(clsDB& db, const QString& sql);

// Opens `databasePath` for reading only, checks the statement, and streams its rows (dates as stored).
// Throws clsDbError with a message for the user on a refusal, a failure or a limit reached.
void Run(const QString& databasePath, const QString& sql, const Limits& limits,
         const clsDB::ColumnsHandler& onColumns, const clsDB::RowHandler& onRow);

} // namespace modUserQuery
