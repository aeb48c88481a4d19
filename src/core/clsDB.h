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

// The one gateway to the database file: one SQLite connection with foreign keys on, the journal in
// DELETE mode and full synchronisation, so that the single file is always the whole truth.
class clsDB {
public:
    clsDB() = default;
    ~clsDB();
    clsDB(const clsDB&) = delete;
    clsDB& operator=(const clsDB&) = delete;

    // The file the connection opens.
    QString DatabasePath;

    // Opens DatabasePath unless the connection is open already. A missing file, a file that is no
    // database, a read-only file or a folder without write permission fail with OpenError() saying what
    // to do; nothing is created, overwritten or deleted.
    bool OpenConnection();
    void CloseConnection();
    bool IsOpen() const { return mDb != nullptr; }
    QString OpenError() const { return mOpenError; }
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
    // Runs a script of several statements without values (schema work).
    void ExecuteScript(const QString& sql);
    // Rows changed by the last statement.
    int Changes() const;

    // Existence tests; they never raise and never show anything.
    bool TableExists(const QString& table);
    bool FieldExists(const QString& table, const QString& column);
    bool ForeignKeyExists(const QString& table, const QString& keyName);

    // True when the statement only reads (checked by the engine, not by looking at words).
    bool IsReadOnlyStatement(const QString& sql, QString* error = nullptr);

    // A readable multi-line form of a statement.
    static QString FormatSQL(const QString& sql, bool upperCase);

    // Nested all-or-nothing work; use clsTransaction.
    void BeginSavepoint();
    void ReleaseSavepoint();
    void RollbackSavepoint();

    // Rebuilds a table with a new definition inside one transaction, copying the columns both share
    // (the engine's table-rebuild procedure; foreign keys are checked before it commits).
    void RebuildTable(const QString& table, const QString& createSql);

private:
    clsRecordset Run(const QString& sql, const QVariantList& values, bool convertDates);
    void Read(const QString& sql, const QVariantList& values, bool convertDates, const ColumnsHandler& onColumns,
              const RowHandler& onRow);
    clsDbError ErrorFor(int code, const QString& sql, const QVariantList& values);
    QString ReferringTable(const QString& sql, const QVariantList& values);
    void SetPragmas();

    sqlite3* mDb = nullptr;
    QString mOpenError;
    int mSavepointDepth = 0;
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
