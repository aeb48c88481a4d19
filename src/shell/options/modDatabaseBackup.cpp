#include "shell/options/modDatabaseBackup.h"

#include "core/modGeneral.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <sqlite3.h>

namespace modDatabaseBackup {
namespace {

// Closes the copy's connection whatever way the work ends.
struct Connection {
    sqlite3* Db = nullptr;
    ~Connection() { sqlite3_close(Db); }
};

QString EngineText(sqlite3* db) {
    return QString::fromUtf8(sqlite3_errmsg(db));
}

// Copies every page of the source into the destination in one go: the source stays readable for the
// program, and the copy is one consistent moment of it.
bool CopyPages(sqlite3* source, sqlite3* destination, QString* error) {
    sqlite3_backup* backup = sqlite3_backup_init(destination, "main", source, "main");
    if (!backup) {
        *error = EngineText(destination);
        return false;
    }
    int rc = SQLITE_OK;
    do {
        rc = sqlite3_backup_step(backup, -1);
        if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED)
            sqlite3_sleep(50);
    } while (rc == SQLITE_OK || rc == SQLITE_BUSY || rc == SQLITE_LOCKED);
    sqlite3_backup_finish(backup);
    if (rc != SQLITE_DONE) {
        *error = QString::fromUtf8(sqlite3_errstr(rc));
        return false;
    }
    return true;
}

// The engine reads the copy back and finds it whole.
bool CheckCopy(sqlite3* copy, QString* error) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(copy, "PRAGMA quick_check", -1, &statement, nullptr) != SQLITE_OK) {
        *error = EngineText(copy);
        return false;
    }
    const bool whole = sqlite3_step(statement) == SQLITE_ROW &&
                       qstrcmp(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)), "ok") == 0;
    sqlite3_finalize(statement);
    if (!whole)
        *error = QStringLiteral("the copy could not be read back whole");
    return whole;
}

QString FreeName(const QDir& folder) {
    const QString first = BackupFileName();
    if (!folder.exists(first))
        return folder.filePath(first);
    const QString stem = QFileInfo(first).completeBaseName();
    for (int n = 2;; ++n) {
        const QString name = stem + QStringLiteral("_") + QString::number(n) + QStringLiteral(".quilldata");
        if (!folder.exists(name))
            return folder.filePath(name);
    }
}

Result Failure(const QString& what) {
    Result result;
    result.Error = what;
    return result;
}

} // namespace

QString BackupFileName() {
    return QStringLiteral("Vowren_") + ReportTimeStamp() + QStringLiteral(".quilldata");
}

Result WriteBackup(sqlite3* source, const QString& folder) {
    if (!source)
        return Failure(QStringLiteral("The database is not open."));
    const QDir dir(folder);
    if (folder.isEmpty() || !dir.exists())
        return Failure(
            QStringLiteral("The folder \"%1\" does not exist.").arg(QDir::toNativeSeparators(folder)));

    QTemporaryFile partial(dir.filePath(QStringLiteral(".Vowren_backup_XXXXXX.part")));
    if (!partial.open())
        return Failure(QStringLiteral("Vowren cannot write into \"%1\": %2")
                           .arg(QDir::toNativeSeparators(folder), partial.errorString()));
    partial.close();

    QString error;
    {
        Connection copy;
        const QByteArray path = QFile::encodeName(partial.fileName());
        if (sqlite3_open_v2(path.constData(), &copy.Db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
            error = copy.Db ? EngineText(copy.Db) : QStringLiteral("out of memory");
        } else if (CopyPages(source, copy.Db, &error)) {
            CheckCopy(copy.Db, &error);
        }
    }
    if (!error.isEmpty())
        return Failure(QStringLiteral("The backup could not be written: %1").arg(error));

    QFile::setPermissions(partial.fileName(), QFile::ReadOwner | QFile::WriteOwner);
    const QString target = FreeName(dir);
    if (!QFile::rename(partial.fileName(), target))
        return Failure(
            QStringLiteral("The backup could not be named \"%1\".").arg(QDir::toNativeSeparators(target)));
    partial.setAutoRemove(false);
    Result result;
    result.Ok = true;
    result.Path = target;
    return result;
}

} // namespace modDatabaseBackup
