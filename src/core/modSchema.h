#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <functional>

class clsDB;

// The one place where tables are defined, in their current shape. A fresh database is made from these
// definitions and the seed rows; the patch driver uses the same definitions to add what an older file lacks.
namespace modSchema {

// Every table, parents before the tables that refer to them.
QStringList TableNames();
// The CREATE TABLE statement of a table in its current shape; empty for an unknown name.
QString TableDDL(const QString& table);
// The CREATE INDEX statements that belong to a table.
QStringList IndexDDL(const QString& table);
// Adds the indexes a table of an older file lacks (lookups only; the unique ones come with their tables).
void CreateMissingIndexes(clsDB& db);
// Creates one table with its indexes if it is missing; true when it was created.
bool CreateTableIfMissing(clsDB& db, const QString& table);

// The seed rows a subsystem gives one of its tables, written after the rows kept here when the table
// is made. The start-up layer registers every subsystem's before the first database is made.
using SeedRows = std::function<void(clsDB& db)>;
void RegisterSeed(const QString& table, SeedRows seed);
// Inserts the rows, one value per column, into the table.
void InsertRows(clsDB& db, const QString& table, const QStringList& columns, const QList<QVariantList>& rows);

// Every table with its seed rows, in one transaction.
void CreateCurrentSchema(clsDB& db);
void SeedTable(clsDB& db, const QString& table);

// Creates a new database file at the path: built in a temporary file beside it, made 0600, and moved
// into place only when complete. An existing file is never touched. False with the reason on failure.
bool CreateDatabaseFile(const QString& path, QString* error);

// The decimal colour values of the three report colours (red + 256 * green + 65536 * blue).
int ReportColour(int index);

} // namespace modSchema
