#include "core/clsDB.h"

#include "core/modBackup.h"
#include "core/modGeneral.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <cstring>
#include <sqlite3.h>
#include <string>
#include <utility>
#include <vector>

namespace {

QString EngineText(sqlite3* db) { return db ? QString::fromUtf8(sqlite3_errmsg(db)) : QString(); }

QString RealText(double value) { return QString::number(value, 'g', 15); }

// The values of one column as the rows go by. A value equal to the one above it is shared instead of being
// made again: down a guest list the people of one invitation share its address and envelope texts, and
// most keys and flags repeat. Text of one ASCII character and small numbers come from a fixed table.
class ColumnReader {
public:
    explicit ColumnReader(bool isDate) : mIsDate(isDate) {}

    QString Read(sqlite3_stmt* stmt, int column) {
        switch (sqlite3_column_type(stmt, column)) {
        case SQLITE_NULL:
            return {};
        case SQLITE_INTEGER:
            return Integer(sqlite3_column_int64(stmt, column));
        case SQLITE_FLOAT:
            return RealText(sqlite3_column_double(stmt, column));
        default:
            return Text(reinterpret_cast<const char*>(sqlite3_column_text(stmt, column)),
                        static_cast<size_t>(sqlite3_column_bytes(stmt, column)));
        }
    }

private:
    static constexpr int kTableSize = 256;

    static const QString& Shared(int code) {
        static const std::vector<QString> numbers = [] {
            std::vector<QString> all;
            all.reserve(kTableSize);
            for (int i = 0; i < kTableSize; ++i)
                all.push_back(QString::number(i));
            return all;
        }();
        return numbers[static_cast<size_t>(code)];
    }

    static const QString& OneCharacter(unsigned char c) {
        static const std::vector<QString> characters = [] {
            std::vector<QString> all;
            all.reserve(128);
            for (int i = 0; i < 128; ++i)
                all.push_back(QString(QLatin1Char(static_cast<char>(i))));
            return all;
        }();
        return characters[c];
    }

    QString Integer(sqlite3_int64 value) {
        if (value >= 0 && value < kTableSize && !mIsDate)
            return Shared(static_cast<int>(value));
        if (!mHasInteger || value != mInteger) {
            mHasInteger = true;
            mHasText = false;
            mInteger = value;
            mValue = Converted(QString::number(value));
        }
        return mValue;
    }

    QString Text(const char* text, size_t size) {
        if (size == 1 && static_cast<unsigned char>(text[0]) < 128 && !mIsDate)
            return OneCharacter(static_cast<unsigned char>(text[0]));
        if (!mHasText || size != mBytes.size() || std::memcmp(text, mBytes.data(), size) != 0) {
            mHasText = true;
            mHasInteger = false;
            mBytes.assign(text, size);
            mValue = Converted(QString::fromUtf8(text, static_cast<qsizetype>(size)));
        }
        return mValue;
    }

    QString Converted(QString value) const { return mIsDate ? DbDates::FromStorage(value) : value; }

    bool mIsDate;
    bool mHasInteger = false;
    bool mHasText = false;
    sqlite3_int64 mInteger = 0;
    std::string mBytes;
    QString mValue;
};

void Bind(sqlite3_stmt* stmt, int index, const QVariant& value) {
    if (value.isNull() || (value.typeId() == QMetaType::QString && value.toString().isEmpty())) {
        sqlite3_bind_null(stmt, index);
        return;
    }
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::Bool:
        sqlite3_bind_int64(stmt, index, value.toLongLong());
        break;
    case QMetaType::Double:
        sqlite3_bind_double(stmt, index, value.toDouble());
        break;
    default: {
        const QByteArray utf8 = value.toString().toUtf8();
        sqlite3_bind_text(stmt, index, utf8.constData(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
    }
    }
}

// A code of our own for a refusal that is no engine failure.
constexpr int kForeignFile = 0x10001;

bool IsBusy(int code) {
    const int primary = code & 0xFF;
    return primary == SQLITE_BUSY || primary == SQLITE_LOCKED;
}

bool IsDamage(int code) {
    const int primary = code & 0xFF;
    return primary == SQLITE_CORRUPT || primary == SQLITE_NOTADB;
}

QString InUseText(const QString& path) {
    return QStringLiteral("The database \"%1\" is in use by another program, which holds it locked.\n\n"
                          "Nothing was changed. Wait a moment and try again, or first close the other program "
                          "(another Vowren, a backup tool or a database browser).")
        .arg(path);
}

QString NewerFileNotice(const QString& path) {
    return QStringLiteral("The database \"%1\" was written by a newer version of Vowren. It is open for reading "
                          "only, so that nothing in it is changed by this older version.\n\n"
                          "Install the newer Vowren to make changes.")
        .arg(path);
}

// Where to turn when the file can't be used: the newest backup, or how to get one back.
QString RestoreAdvice() {
    const QString newest = modBackup::NewestBackup();
    if (newest.isEmpty())
        return QStringLiteral("Nothing was changed. Keep the file; restore it from a copy you made (see Options, "
                              "Backup and Restore).");
    return QStringLiteral("Nothing was changed. Keep the file, and restore your newest backup:\n%1\n"
                          "(vowren-cli restore \"%1\", or Options, Backup and Restore).")
        .arg(newest);
}

QString OpenFailureMessage(const QString& path, const clsDbError& e) {
    if (IsBusy(e.Code()))
        return InUseText(path);
    if (e.Code() == kForeignFile)
        return QStringLiteral("The file \"%1\" is not a Vowren database (%2).\n\n"
                              "Nothing was changed. Check the path, and Database/Vowren.connect if you use one.")
            .arg(path, e.Message());
    if (IsDamage(e.Code()))
        return QStringLiteral("The file \"%1\" is damaged or is not a Vowren database (%2).\n\n").arg(path, e.Message()) +
               RestoreAdvice();
    return QStringLiteral("Unable to open \"%1\": %2").arg(path, e.Message());
}

// Frees a prepared statement at the end of a scope.
struct Statement {
    sqlite3_stmt* stmt = nullptr;
    ~Statement() { sqlite3_finalize(stmt); }
};

} // namespace

clsDbError::clsDbError(const QString& message, int code)
    : std::runtime_error(message.toStdString()), mMessage(message), mCode(code) {}

clsDB::~clsDB() { CloseConnection(); }

bool clsDB::OpenConnection() { return Open(false); }

bool clsDB::OpenReadOnly() { return Open(true); }

// What can be told of the path before the engine sees it.
bool clsDB::CheckFile() {
    const QFileInfo file(DatabasePath);
    if (DatabasePath.isEmpty()) {
        mOpenError = QStringLiteral("No database file is named.");
        return false;
    }
    if (!file.exists()) {
        mOpenError = QStringLiteral("The database file \"%1\" does not exist.\n\n"
                                    "Check the path (and Database/Vowren.connect, if you use one).")
                         .arg(DatabasePath);
        return false;
    }
    if (!file.isFile()) {
        mOpenError = QStringLiteral("\"%1\" is a folder, not a database file.").arg(DatabasePath);
        return false;
    }
    if (mReadOnly)
        return true;
    if (!file.isWritable()) {
        mOpenError = QStringLiteral("The database file \"%1\" is read-only.\n\n"
                                    "Give your user permission to change it, then start Vowren again.")
                         .arg(DatabasePath);
        return false;
    }
    if (!QFileInfo(file.absolutePath()).isWritable()) {
        mOpenError = QStringLiteral("The folder \"%1\" can't be written to, so changes to the database could not "
                                    "be saved safely.\n\nGive your user permission to write to that folder.")
                         .arg(file.absolutePath());
        return false;
    }
    return true;
}

bool clsDB::Open(bool readOnly) {
    if (mDb)
        return true;
    mOpenError.clear();
    mOpenNotice.clear();
    mReadOnly = readOnly;
    if (!CheckFile())
        return false;
    sqlite3* db = nullptr;
    const QByteArray path = QDir::toNativeSeparators(QFileInfo(DatabasePath).absoluteFilePath()).toUtf8();
    const int flags = (readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE) | SQLITE_OPEN_NOMUTEX;
    if (sqlite3_open_v2(path.constData(), &db, flags, nullptr) != SQLITE_OK) {
        mOpenError = QStringLiteral("Unable to open \"%1\": %2").arg(DatabasePath, EngineText(db));
        sqlite3_close(db);
        return false;
    }
    mDb = db;
    sqlite3_extended_result_codes(mDb, 1);
    sqlite3_busy_timeout(mDb, mBusyTimeoutMs);
    try {
        // A file that is no database fails at its first read; a cut-off file is shorter than its pages.
        Execute(QStringLiteral("SELECT count(*) FROM sqlite_master"));
        const qint64 pages = Execute(QStringLiteral("PRAGMA page_count")).Scalar().toLongLong();
        const qint64 pageSize = Execute(QStringLiteral("PRAGMA page_size")).Scalar().toLongLong();
        if (QFileInfo(DatabasePath).size() < pages * pageSize)
            throw clsDbError(QStringLiteral("the file is shorter than its contents (it was cut off)"), SQLITE_CORRUPT);
        CheckIdentity();
        if (SchemaVersion() > DbIdentity::kSchemaVersion) {
            // A newer Vowren's file is read, never changed.
            mOpenNotice = NewerFileNotice(DatabasePath);
            if (!readOnly) {
                CloseConnection();
                return Open(true); // which sets the notice again
            }
        }
        const QString check = Execute(QStringLiteral("PRAGMA quick_check(1)")).Scalar();
        if (check != QLatin1String("ok"))
            throw clsDbError(check, SQLITE_CORRUPT);
        if (mReadOnly)
            ExecuteScript(QStringLiteral("PRAGMA query_only=ON"));
        else
            SetPragmas();
    } catch (const clsDbError& e) {
        CloseConnection();
        mOpenError = OpenFailureMessage(DatabasePath, e);
        return false;
    }
    return true;
}

// A file is ours when it carries our application id, or, without one, when it holds the tables of an
// older Vowren (or none at all: a new file). Another program's database is never touched.
void clsDB::CheckIdentity() {
    const int id = ApplicationId();
    if (id == 0) {
        const bool hasTables =
            Execute(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE type = 'table'")).Scalar() != "0";
        if (hasTables && !TableExists(QStringLiteral("CONTACT")))
            throw clsDbError(QStringLiteral("it holds no Vowren tables"), kForeignFile);
    } else if (id != DbIdentity::kApplicationId) {
        throw clsDbError(QStringLiteral("it belongs to another program"), kForeignFile);
    }
}

int clsDB::SchemaVersion() { return Execute(QStringLiteral("PRAGMA user_version")).Scalar().toInt(); }

int clsDB::ApplicationId() { return Execute(QStringLiteral("PRAGMA application_id")).Scalar().toInt(); }

void clsDB::StampIdentity(int schemaVersion) {
    ExecuteScript(QStringLiteral("PRAGMA application_id=%1; PRAGMA user_version=%2")
                      .arg(DbIdentity::kApplicationId)
                      .arg(schemaVersion));
}

void clsDB::SetBusyTimeout(int ms) {
    mBusyTimeoutMs = ms;
    if (mDb)
        sqlite3_busy_timeout(mDb, ms);
}

void clsDB::SetPragmas() {
    ExecuteScript(QStringLiteral("PRAGMA foreign_keys=ON; PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL;"));
}

void clsDB::CloseConnection() {
    if (mDb) {
        sqlite3_close_v2(mDb);
        mDb = nullptr;
        mSavepointDepth = 0;
    }
}

clsRecordset clsDB::Execute(const QString& sql, const QVariantList& values) { return Run(sql, values, true); }

clsRecordset clsDB::ExecuteRaw(const QString& sql, const QVariantList& values) { return Run(sql, values, false); }

clsRecordset clsDB::Run(const QString& sql, const QVariantList& values, bool convertDates) {
    clsRecordset result;
    Read(
        sql, values, convertDates, [&result](const QStringList& columns) { result = clsRecordset(columns); },
        [&result](QStringList& row) { result.AppendRow(std::exchange(row, QStringList())); });
    return result;
}

void clsDB::Stream(const QString& sql, const QVariantList& values, const ColumnsHandler& onColumns,
                   const RowHandler& onRow) {
    Read(sql, values, true, onColumns, onRow);
}

void clsDB::StreamRaw(const QString& sql, const QVariantList& values, const ColumnsHandler& onColumns,
                      const RowHandler& onRow) {
    Read(sql, values, false, onColumns, onRow);
}

void clsDB::Read(const QString& sql, const QVariantList& values, bool convertDates, const ColumnsHandler& onColumns,
                 const RowHandler& onRow) {
    if (!mDb && !OpenConnection())
        throw clsDbError(mOpenError, SQLITE_CANTOPEN);
    Statement st;
    const QByteArray utf8 = sql.toUtf8();
    int rc = sqlite3_prepare_v2(mDb, utf8.constData(), static_cast<int>(utf8.size()), &st.stmt, nullptr);
    if (rc != SQLITE_OK)
        throw ErrorFor(rc, sql, values);
    for (int i = 0; i < values.size(); ++i)
        Bind(st.stmt, i + 1, values[i]);
    const int columnCount = sqlite3_column_count(st.stmt);
    QStringList columns;
    std::vector<ColumnReader> readers;
    readers.reserve(static_cast<size_t>(columnCount));
    for (int c = 0; c < columnCount; ++c) {
        columns << QString::fromUtf8(sqlite3_column_name(st.stmt, c));
        readers.emplace_back(convertDates && DbDates::IsDateColumn(columns.last()));
    }
    onColumns(columns);
    // One buffer for every row: what the handler leaves in it is overwritten by the next row.
    QStringList row;
    while ((rc = sqlite3_step(st.stmt)) == SQLITE_ROW) {
        row.clear();
        row.reserve(columnCount);
        for (int c = 0; c < columnCount; ++c)
            row.append(readers[static_cast<size_t>(c)].Read(st.stmt, c));
        onRow(row);
    }
    if (rc != SQLITE_DONE)
        throw ErrorFor(rc, sql, values);
}

void clsDB::ExecuteScript(const QString& sql) {
    if (!mDb && !OpenConnection())
        throw clsDbError(mOpenError, SQLITE_CANTOPEN);
    char* error = nullptr;
    const int rc = sqlite3_exec(mDb, sql.toUtf8().constData(), nullptr, nullptr, &error);
    if (rc != SQLITE_OK) {
        sqlite3_free(error);
        throw ErrorFor(rc, sql, {});
    }
}

int clsDB::Changes() const { return mDb ? sqlite3_changes(mDb) : 0; }

clsDbError clsDB::ErrorFor(int code, const QString& sql, const QVariantList& values) {
    const QString engine = EngineText(mDb);
    const int extended = mDb ? sqlite3_extended_errcode(mDb) : code;
    if (IsBusy(extended))
        return clsDbError(InUseText(DatabasePath), extended);
    if ((extended & 0xFF) == SQLITE_FULL)
        return clsDbError(QStringLiteral("The disk that holds \"%1\" is full, so the change could not be saved. "
                                         "Nothing was changed.\n\nFree some space on the disk and try again.")
                              .arg(DatabasePath),
                          extended);
    switch (extended) {
    case SQLITE_CONSTRAINT_FOREIGNKEY: {
        const QString child = ReferringTable(sql, values);
        if (!child.isEmpty())
            return clsDbError(QStringLiteral("The record cannot be deleted or changed because table '%1' includes "
                                             "related records.")
                                  .arg(child),
                              extended);
        return clsDbError(QStringLiteral("You cannot add or change a record because a related record is required "
                                         "(%1).")
                              .arg(engine),
                          extended);
    }
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
        return clsDbError(QStringLiteral("The changes you requested to the table were not successful because they "
                                         "would create duplicate values in the index, primary key, or relationship "
                                         "(%1).")
                              .arg(engine),
                          extended);
    case SQLITE_CONSTRAINT_NOTNULL:
        return clsDbError(QStringLiteral("A value is required: %1.").arg(engine), extended);
    default:
        return clsDbError(engine.isEmpty() ? QStringLiteral("Database error %1").arg(code) : engine, extended);
    }
}

// Works out which table still refers to the rows a failed DELETE meant to remove.
QString clsDB::ReferringTable(const QString& sql, const QVariantList& values) {
    static const QRegularExpression deletePattern(
        QStringLiteral(R"(^\s*DELETE\s+(?:\*\s+)?FROM\s+([A-Za-z_][A-Za-z0-9_]*)\s*(.*)$)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    const auto match = deletePattern.match(sql);
    if (!match.hasMatch())
        return {};
    const QString parent = match.captured(1);
    const QString condition = match.captured(2);
    try {
        const clsRecordset links = Run(QStringLiteral(
            "SELECT m.name, f.\"from\", f.\"to\" FROM sqlite_master AS m, pragma_foreign_key_list(m.name) AS f "
            "WHERE m.type = 'table' AND f.\"table\" = ? COLLATE NOCASE ORDER BY m.name"), {parent}, false);
        for (int i = 0; i < links.RowCount(); ++i) {
            const QString probe = QStringLiteral("SELECT 1 FROM %1 WHERE %2 IN (SELECT %3 FROM %4 %5) LIMIT 1")
                                      .arg(links.Value(i, 0), links.Value(i, 1), links.Value(i, 2), parent, condition);
            if (!Run(probe, values, false).IsEmpty())
                return links.Value(i, 0);
        }
    } catch (const clsDbError&) {
        return {};
    }
    return {};
}

bool clsDB::TableExists(const QString& table) {
    try {
        Run(QStringLiteral("SELECT * FROM %1 LIMIT 0").arg(table), {}, false);
        return true;
    } catch (const clsDbError&) {
        return false;
    }
}

bool clsDB::FieldExists(const QString& table, const QString& column) {
    try {
        Run(QStringLiteral("SELECT %1 FROM %2 LIMIT 0").arg(column, table), {}, false);
        return true;
    } catch (const clsDbError&) {
        return false;
    }
}

bool clsDB::ForeignKeyExists(const QString& table, const QString& keyName) {
    try {
        const QString createSql =
            Run(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'table' AND name = ?"), {table}, false)
                .Scalar();
        const QRegularExpression named(QStringLiteral("\\bCONSTRAINT\\s+\"?%1\"?\\s").arg(QRegularExpression::escape(keyName)),
                                       QRegularExpression::CaseInsensitiveOption);
        return named.match(createSql).hasMatch();
    } catch (const clsDbError&) {
        return false;
    }
}

QString clsDB::FormatSQL(const QString& sql, bool upperCase) {
    QString text = upperCase ? sql.toUpper() : sql;
    const QString crlf = QStringLiteral("\r\n");
    if (text.contains(crlf))
        return text;
    const std::pair<const char*, const char*> replacements[] = {
        {" DECODE", "       DECODE"}, {" FROM ", "  FROM "},    {" WHERE ", " WHERE "},
        {" AND ", "   AND "},         {" ORDER BY ", "ORDER BY "}, {" VALUES ", "VALUES "},
        {" SET ", "   SET "},         {" UNION ", " UNION "},   {"MINUS ", " MINUS "},
    };
    for (const auto& [find, replace] : replacements)
        text.replace(QLatin1String(find), crlf + QLatin1String(replace));
    return text;
}

void clsDB::BeginSavepoint() {
    if (mSavepointDepth > 0 && !InTransaction())
        mSavepointDepth = 0; // the engine ended the transaction itself (a failure that rolls back)
    ExecuteScript(mSavepointDepth == 0 ? QStringLiteral("BEGIN IMMEDIATE")
                                       : QStringLiteral("SAVEPOINT vowren_%1").arg(mSavepointDepth));
    ++mSavepointDepth;
}

void clsDB::ReleaseSavepoint() {
    if (mSavepointDepth == 0)
        return;
    if (mSavepointDepth > 1) {
        ExecuteScript(QStringLiteral("RELEASE vowren_%1").arg(mSavepointDepth - 1));
        --mSavepointDepth;
        return;
    }
    try {
        ExecuteScript(QStringLiteral("COMMIT"));
    } catch (const clsDbError&) {
        // A commit that fails (another program reads the file) leaves the transaction open: undo it, so
        // that nothing later is saved inside it and lost.
        if (InTransaction())
            sqlite3_exec(mDb, "ROLLBACK", nullptr, nullptr, nullptr);
        mSavepointDepth = 0;
        throw;
    }
    mSavepointDepth = 0;
}

void clsDB::RollbackSavepoint() {
    if (mSavepointDepth == 0)
        return;
    --mSavepointDepth;
    if (!InTransaction()) {
        mSavepointDepth = 0;
        return;
    }
    if (mSavepointDepth == 0)
        ExecuteScript(QStringLiteral("ROLLBACK"));
    else
        ExecuteScript(QStringLiteral("ROLLBACK TO vowren_%1; RELEASE vowren_%1").arg(mSavepointDepth));
}

bool clsDB::InTransaction() const { return mDb && sqlite3_get_autocommit(mDb) == 0; }

void clsDB::RebuildTable(const QString& table, const QString& createSql, const QStringList& dropped) {
    if (InTransaction()) {
        // Only a schema change may hold a rebuild: foreign keys can't be switched off inside a transaction.
        if (Run(QStringLiteral("PRAGMA foreign_keys"), {}, false).Scalar() != QLatin1String("0"))
            throw clsDbError(QStringLiteral("A table can't be rebuilt inside another change."), SQLITE_MISUSE);
        CopyRebuiltTable(table, createSql, dropped);
        return;
    }
    clsSchemaChange change(*this);
    CopyRebuiltTable(table, createSql, dropped);
    change.Commit();
}

void clsDB::CopyRebuiltTable(const QString& table, const QString& createSql, const QStringList& dropped) {
    const QString temp = QStringLiteral("vowren_rebuild_") + table;
    QString createTemp = createSql;
    createTemp.replace(QRegularExpression(QStringLiteral("^\\s*CREATE\\s+TABLE\\s+\"?%1\"?").arg(table),
                                          QRegularExpression::CaseInsensitiveOption),
                       QStringLiteral("CREATE TABLE ") + temp);
    const clsRecordset indexes = Run(
        QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'index' AND tbl_name = ? AND sql IS NOT NULL"),
        {table}, false);
    ExecuteScript(createTemp);
    QStringList shared;
    const clsRecordset oldColumns = Run(QStringLiteral("SELECT name FROM pragma_table_info(?)"), {table}, false);
    const clsRecordset newColumns = Run(QStringLiteral("SELECT name FROM pragma_table_info(?)"), {temp}, false);
    for (int j = 0; j < oldColumns.RowCount(); ++j) {
        const QString column = oldColumns.Value(j, 0);
        bool kept = false;
        for (int i = 0; i < newColumns.RowCount() && !kept; ++i)
            kept = newColumns.Value(i, 0).compare(column, Qt::CaseInsensitive) == 0;
        if (kept)
            shared << column;
        else if (!dropped.contains(column, Qt::CaseInsensitive))
            throw clsDbError(QStringLiteral("Rebuilding %1 would lose its column %2, which the new shape does not "
                                            "know.")
                                 .arg(table, column),
                             SQLITE_MISUSE);
    }
    const QString list = shared.join(QStringLiteral(", "));
    ExecuteScript(QStringLiteral("INSERT INTO %1 (%2) SELECT %2 FROM %3").arg(temp, list, table));
    ExecuteScript(QStringLiteral("DROP TABLE %1").arg(table));
    ExecuteScript(QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(temp, table));
    for (int i = 0; i < indexes.RowCount(); ++i)
        ExecuteScript(indexes.Value(i, 0));
}

clsSchemaChange::clsSchemaChange(clsDB& db) : mDb(db) {
    if (mDb.InTransaction())
        throw clsDbError(QStringLiteral("A change of the schema can't start inside another change."), SQLITE_MISUSE);
    mDb.ExecuteScript(QStringLiteral("PRAGMA foreign_keys=OFF"));
    try {
        mDb.BeginSavepoint();
        mRowChangesAtStart = sqlite3_total_changes64(mDb.Connection());
        mSchemaAtStart = mDb.Execute(QStringLiteral("PRAGMA schema_version")).Scalar();
    } catch (...) {
        mDb.ExecuteScript(QStringLiteral("PRAGMA foreign_keys=ON"));
        throw;
    }
}

clsSchemaChange::~clsSchemaChange() {
    try {
        if (!mDone)
            mDb.RollbackSavepoint();
        mDb.ExecuteScript(QStringLiteral("PRAGMA foreign_keys=ON"));
    } catch (const clsDbError&) {
        // The connection is gone; there is nothing left to undo.
    }
}

bool clsSchemaChange::ChangedAnything() {
    return sqlite3_total_changes64(mDb.Connection()) != mRowChangesAtStart ||
           mDb.Execute(QStringLiteral("PRAGMA schema_version")).Scalar() != mSchemaAtStart;
}

void clsSchemaChange::Commit() {
    if (ChangedAnything() && !mDb.Execute(QStringLiteral("PRAGMA foreign_key_check")).IsEmpty())
        throw clsDbError(QStringLiteral("The change would break the links between tables."),
                         SQLITE_CONSTRAINT_FOREIGNKEY);
    mDb.ReleaseSavepoint();
    mDone = true;
}

clsTransaction::clsTransaction(clsDB& db) : mDb(db) { mDb.BeginSavepoint(); }

clsTransaction::~clsTransaction() {
    if (!mDone) {
        try {
            mDb.RollbackSavepoint();
        } catch (const clsDbError&) {
            // The connection is gone; there is nothing left to undo.
        }
    }
}

void clsTransaction::Commit() {
    mDb.ReleaseSavepoint();
    mDone = true;
}

namespace DbDates {

bool IsDateColumn(const QString& column) { return column.endsWith(QLatin1String("_DT"), Qt::CaseInsensitive); }

namespace {

// The number of `count` digits at `from`, or -1 when any of them is no digit.
int Digits(const QString& text, qsizetype from, int count) {
    int value = 0;
    for (qsizetype i = from; i < from + count; ++i) {
        const char16_t c = text.at(i).unicode();
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + (c - u'0');
    }
    return value;
}

// The forms the program stores, "2027-06-05" and "2027-06-05 15:00:00" (seconds optional), read without
// the general parser: a long list has a date in every row.
bool ReadStoredForm(const QString& text, QDate* date, QTime* time) {
    const qsizetype size = text.size();
    if (size != 10 && size != 16 && size != 19)
        return false;
    if (text.at(4) != QLatin1Char('-') || text.at(7) != QLatin1Char('-'))
        return false;
    *date = QDate(Digits(text, 0, 4), Digits(text, 5, 2), Digits(text, 8, 2));
    *time = QTime(0, 0);
    if (size > 10) {
        if (text.at(10) != QLatin1Char(' ') || text.at(13) != QLatin1Char(':') ||
            (size == 19 && text.at(16) != QLatin1Char(':')))
            return false;
        *time = QTime(Digits(text, 11, 2), Digits(text, 14, 2), size == 19 ? Digits(text, 17, 2) : 0);
    }
    return date->isValid() && time->isValid();
}

} // namespace

QString FromStorage(const QString& stored) {
    if (stored.isEmpty())
        return stored;
    QDate date;
    QTime time;
    if (!ReadStoredForm(stored, &date, &time)) {
        const QDateTime moment = ParseDateTimeText(stored);
        if (!moment.isValid())
            return stored;
        date = moment.date();
        time = moment.time();
    }
    if (time == QTime(0, 0))
        return FormatDate(date);
    return FormatDate(date) + QLatin1Char(' ') + FormatTime(time);
}

QString ToStorage(const QString& text, const QString& column) {
    if (text.trimmed().isEmpty())
        return {};
    const QDateTime moment = ParseDateTimeText(text);
    if (!moment.isValid())
        throw clsDbError(QStringLiteral("\"%1\" is not a date (%2).").arg(text, column), SQLITE_MISMATCH);
    if (moment.time() == QTime(0, 0))
        return moment.date().toString(QStringLiteral("yyyy-MM-dd"));
    return moment.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

} // namespace DbDates

clsDB& gDB() {
    static clsDB db;
    return db;
}
