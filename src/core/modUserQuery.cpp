#include "core/modUserQuery.h"

#include <QElapsedTimer>
#include <sqlite3.h>

namespace modUserQuery {
namespace {

// Only reading passes: no transaction, no savepoint, no PRAGMA, no other file attached.
int OnlyReading(void*, int action, const char*, const char*, const char*, const char*) {
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_FUNCTION:
    case SQLITE_RECURSIVE:
        return SQLITE_OK;
    default:
        return SQLITE_DENY;
    }
}

struct Deadline {
    QElapsedTimer Clock;
    int TimeoutMs = 0;
};

int PastDeadline(void* context) {
    const auto* deadline = static_cast<const Deadline*>(context);
    return deadline->Clock.elapsed() > deadline->TimeoutMs ? 1 : 0;
}

// The engine's hooks are taken off whatever way the query ends.
struct Hooks {
    sqlite3* Db;
    ~Hooks() {
        sqlite3_set_authorizer(Db, nullptr, nullptr);
        sqlite3_progress_handler(Db, 0, nullptr, nullptr);
    }
};

} // namespace

QString Refusal(clsDB& db, const QString& sql) {
    sqlite3* connection = db.Connection();
    sqlite3_set_authorizer(connection, OnlyReading, nullptr);
    const Hooks hooks{connection};
    sqlite3_stmt* statement = nullptr;
    const QByteArray utf8 = sql.toUtf8();
    const char* tail = nullptr;
    const int rc = sqlite3_prepare_v2(connection, utf8.constData(), static_cast<int>(utf8.size()), &statement, &tail);
    const QString engine = QString::fromUtf8(sqlite3_errmsg(connection));
    const bool readOnly = statement && sqlite3_stmt_readonly(statement);
    sqlite3_finalize(statement);
    if (rc == SQLITE_AUTH)
        return QStringLiteral("only a statement that reads can be run: no change, transaction, PRAGMA or other "
                              "file");
    if (rc != SQLITE_OK)
        return engine;
    const QByteArray rest = QByteArray(tail ? tail : "").trimmed();
    if (!rest.isEmpty() && rest != ";")
        return QStringLiteral("only one statement can be run at a time");
    if (!statement)
        return QStringLiteral("there is no statement to run");
    if (!readOnly)
        return QStringLiteral("only a statement that reads can be run; this one would change the database");
    return {};
}

void Run(const QString& databasePath, const QString& sql, const Limits& limits,
         const clsDB::ColumnsHandler& onColumns, const clsDB::RowHandler& onRow) {
    clsDB db;
    db.DatabasePath = databasePath;
    if (!db.OpenReadOnly())
        throw clsDbError(db.OpenError(), SQLITE_CANTOPEN);
    const QString refusal = Refusal(db, sql);
    if (!refusal.isEmpty())
        throw clsDbError(QStringLiteral("The query was not run: %1.").arg(refusal), SQLITE_AUTH);
    Deadline deadline;
    deadline.TimeoutMs = limits.TimeoutMs;
    deadline.Clock.start();
    sqlite3_progress_handler(db.Connection(), 1000, PastDeadline, &deadline);
    const Hooks hooks{db.Connection()};
    qint64 rows = 0;
    try {
        db.StreamRaw(sql, {}, onColumns, [&](QStringList& values) {
            if (++rows > limits.MaxRows)
                throw clsDbError(QStringLiteral("The query was stopped: it returns more than %L1 rows. Narrow it "
                                                "down with WHERE or LIMIT.")
                                     .arg(limits.MaxRows),
                                 SQLITE_TOOBIG);
            onRow(values);
        });
    } catch (const clsDbError& e) {
        if ((e.Code() & 0xFF) == SQLITE_INTERRUPT)
            throw clsDbError(QStringLiteral("The query was stopped: it ran longer than %1 seconds. Narrow it down, "
                                            "or ask for fewer rows.")
                                 .arg(limits.TimeoutMs / 1000.0),
                             SQLITE_INTERRUPT);
        throw;
    }
}

} // namespace modUserQuery
