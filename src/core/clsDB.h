#pragma once

#include "core/clsRecordset.h"

#include <QString>
#include <QVariant>
#include <QVariantList>
#include <functional>
#include <stdexcept>

struct sqlite3;

// An engine failure. Message() is the engine's words, already put the way the program's messages
// expect them: a row still referred to reads "... table 'CONTACT' includes related records", a value a
// unique index holds already reads "... duplicate values in the index ...".
class clsDbError : public std::runtime_error {
public:
    clsDbError(const QString& message, int code);
    QString Message() const { return mMessage; }
    int Code() const { return mCode; }

private:
    QString mMessage;
    int mCode;
};

// What marks a file as ours: the engine's application id, and the schema version the patch driver
// brought the file to (the engine's user version). A file of an older Vowren has neither.
namespace DbIdentity {
inline constexpr int kApplicationId = 0x56574E52; // "VWNR"
inline constexpr int kSchemaVersion = 2; // 2: the seating rules
} // namespace DbIdentity

// The one gateway to the database file: one SQLite connection with foreign keys on, the journal in
// DELETE mode and full synchronisation, so that the single file is always the whole truth. A reader in
// another program delays a save by up to BusyTimeoutMs instead of failing it.
class clsDB {
public:
    clsDB() = default;
    ~clsDB();
    clsDB(const clsDB&) = delete;
    clsDB& operator=(const clsDB&) = delete;

    // The file the connection opens.
    QString DatabasePath;

    static constexpr int BusyTimeoutMs = 5000;
    // How long a statement waits for another program's lock.
    void SetBusyTimeout(int ms);

    // Opens DatabasePath unless the connection is open already. A missing file, a file that is no
    // database or another program's, a damaged, busy or read-only file, or a folder without write
    // permission fail with OpenError() saying what to do; nothing is created, overwritten or deleted.
    // A file of a newer Vowren opens read-only, with OpenNotice() saying so.
    bool OpenConnection();
    // The same for reading only, on a connection that can't write (queries of the user's own).
    bool OpenReadOnly();
    void CloseConnection();
    bool IsOpen() const { return mDb != nullptr; }
    bool IsReadOnly() const { return mReadOnly; }
    QString OpenError() const { return mOpenError; }
    QString OpenNotice() const { return mOpenNotice; }
    // The engine's user version and application id of the open file.
    int SchemaVersion();
    int ApplicationId();
    // Marks the open file as ours, at the schema version given.
    void StampIdentity(int schemaVersion);
    sqlite3* Connection() const { return mDb; }

    // Runs one statement with its values bound in order (a null QVariant or an empty QString is NULL)
    // and gives back its rows. Throws clsDbError on any failure.
    clsRecordset Execute(const QString& sql, const QVariantList& values = {});
    // The same, but dates stay as the stored ISO text (for exports meant for other programs).
    clsRecordset ExecuteRaw(const QString& sql, const QVariantList& values = {});
    // Runs one statement like Execute, but hands each row to onRow as it comes instead of keeping them:
    // onColumns first, once, with the column names; then onRow with each row's values, which it may move
    // away. A long list is read without a copy of it in between. Throws clsDbError on any failure.
    using ColumnsHandler = std::function<void(const QStringList& columns)>;
    using RowHandler = std::function<void(QStringList& values)>;
    void Stream(const QString& sql, const QVariantList& values, const ColumnsHandler& onColumns,
                const RowHandler& onRow);
    // The same with dates as the stored ISO text.
    void StreamRaw(const QString& sql, const QVariantList& values, const ColumnsHandler& onColumns,
                   const RowHandler& onRow);
    // Runs a script of several statements without values (schema work).
    void ExecuteScript(const QString& sql);
    // Rows changed by the last statement.
    int Changes() const;

    // Existence tests; they never raise and never show anything.
    bool TableExists(const QString& table);
    bool FieldExists(const QString& table, const QString& column);
    bool ForeignKeyExists(const QString& table, const QString& keyName);

    // A readable multi-line form of a statement.
    static QString FormatSQL(const QString& sql, bool upperCase);

    // Nested all-or-nothing work; use clsTransaction. The outermost level is a transaction that takes the
    // write lock at once (BEGIN IMMEDIATE); a commit that fails rolls back, so the engine and the depth
    // always agree and no later save is caught inside a dead transaction.
    void BeginSavepoint();
    void ReleaseSavepoint();
    void RollbackSavepoint();
    bool InTransaction() const;

    // Rebuilds a table with a new definition, copying the columns both share (the engine's table-rebuild
    // procedure; foreign keys are checked before it is done). A column of the old table that the new
    // definition lacks is dropped only when it is named in `dropped`; any other is a refusal. Alone it is
    // its own transaction; inside one (see clsSchemaChange) it becomes part of it.
    void RebuildTable(const QString& table, const QString& createSql, const QStringList& dropped = {});

private:
    clsRecordset Run(const QString& sql, const QVariantList& values, bool convertDates);
    void Read(const QString& sql, const QVariantList& values, bool convertDates, const ColumnsHandler& onColumns,
              const RowHandler& onRow);
    clsDbError ErrorFor(int code, const QString& sql, const QVariantList& values);
    QString ReferringTable(const QString& sql, const QVariantList& values);
    void SetPragmas();
    bool Open(bool readOnly);
    bool CheckFile();
    void CheckIdentity();
    void CopyRebuiltTable(const QString& table, const QString& createSql, const QStringList& dropped);

    sqlite3* mDb = nullptr;
    QString mOpenError;
    QString mOpenNotice;
    int mSavepointDepth = 0;
    int mBusyTimeoutMs = BusyTimeoutMs;
    bool mReadOnly = false;
};

// A change of the schema as one unit: foreign keys are switched off before it begins (as the engine's
// table-rebuild procedure needs), every link is checked before it commits, and a failure leaves the file
// as it was before it began.
class clsSchemaChange {
public:
    explicit clsSchemaChange(clsDB& db);
    ~clsSchemaChange();
    clsSchemaChange(const clsSchemaChange&) = delete;
    clsSchemaChange& operator=(const clsSchemaChange&) = delete;
    void Commit();

private:
    // True when the change wrote rows or changed a table: only then are the links checked.
    bool ChangedAnything();

    clsDB& mDb;
    bool mDone = false;
    qint64 mRowChangesAtStart = 0;
    QString mSchemaAtStart;
};

// All or nothing: work done while it lives is undone unless Commit() is called.
class clsTransaction {
public:
    explicit clsTransaction(clsDB& db);
    ~clsTransaction();
    clsTransaction(const clsTransaction&) = delete;
    clsTransaction& operator=(const clsTransaction&) = delete;
    void Commit();

private:
    clsDB& mDb;
    bool mDone = false;
};

// Converts between the stored ISO text of a date column and the program's date text.
namespace DbDates {
// "2027-06-05" -> "05-Jun-2027"; "2027-06-05 15:00:00" -> "05-Jun-2027 3:00 PM" (locale's time format).
QString FromStorage(const QString& stored);
// The reverse; empty stays empty. Text that is no date throws clsDbError saying so.
QString ToStorage(const QString& text, const QString& column);
bool IsDateColumn(const QString& column);
} // namespace DbDates

clsDB& gDB();
