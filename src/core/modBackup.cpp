#include "core/modBackup.h"

#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/modGeneral.h"
#include "platform/VowrenPaths.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <algorithm>
#include <sqlite3.h>

namespace modBackup {
namespace {

const QString kExtension = QStringLiteral(".quilldata");

// Closes the copy's connection whatever way the work ends.
struct Connection {
    sqlite3* Db = nullptr;
    ~Connection() { sqlite3_close(Db); }
};

QString EngineText(sqlite3* db) { return QString::fromUtf8(sqlite3_errmsg(db)); }

// Copies every page of the source into the destination in one go, so that the copy is one consistent
// moment. Another program holding the source delays the copy, for kBusyWaitMs at the most.
bool CopyPages(sqlite3* source, sqlite3* destination, QString* error) {
    sqlite3_backup* backup = sqlite3_backup_init(destination, "main", source, "main");
    if (!backup) {
        *error = EngineText(destination);
        return false;
    }
    QElapsedTimer waited;
    waited.start();
    int rc = SQLITE_OK;
    do {
        rc = sqlite3_backup_step(backup, -1);
        if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED)
            sqlite3_sleep(50);
    } while (rc == SQLITE_OK || ((rc == SQLITE_BUSY || rc == SQLITE_LOCKED) && waited.elapsed() < kBusyWaitMs));
    sqlite3_backup_finish(backup);
    if (rc == SQLITE_BUSY || rc == SQLITE_LOCKED) {
        *error = QStringLiteral("another program kept the database busy for %1 seconds. Close it and try again")
                     .arg(kBusyWaitMs / 1000);
        return false;
    }
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

QString FreeName(const QDir& folder, const QString& tag) {
    const QString first = BackupFileName(tag);
    if (!folder.exists(first))
        return folder.filePath(first);
    const QString stem = QFileInfo(first).completeBaseName();
    for (int n = 2;; ++n) {
        const QString name = stem + QStringLiteral("_") + QString::number(n) + kExtension;
        if (!folder.exists(name))
            return folder.filePath(name);
    }
}

Result Failure(const QString& what) {
    Result result;
    result.Error = what;
    return result;
}

// The copies in the folder, newest first.
QFileInfoList Copies() {
    QFileInfoList files = QDir(Folder()).entryInfoList({QStringLiteral("Vowren_*") + kExtension}, QDir::Files);
    std::sort(files.begin(), files.end(), [](const QFileInfo& a, const QFileInfo& b) {
        return a.lastModified() != b.lastModified() ? a.lastModified() > b.lastModified()
                                                    : a.fileName() > b.fileName();
    });
    return files;
}

void Prune(int keep) {
    const QFileInfoList files = Copies();
    for (qsizetype i = std::max(keep, 1); i < files.size(); ++i)
        QFile::remove(files.at(i).absoluteFilePath());
}

long Count(clsDB& copy, const QString& table) {
    try {
        return copy.Execute(QStringLiteral("SELECT COUNT(*) FROM ") + table).Scalar().toLong();
    } catch (const clsDbError&) {
        return -1;
    }
}

} // namespace

QString Folder() { return VowrenPaths::Join(VowrenPaths::DataRoot(), QStringLiteral("Database/Backups")); }

QString BackupFileName(const QString& tag) {
    return QStringLiteral("Vowren_") + (tag.isEmpty() ? QString() : tag + QLatin1Char('_')) + ReportTimeStamp() +
           kExtension;
}

Result WriteBackup(sqlite3* source, const QString& folder, const QString& tag) {
    if (!source)
        return Failure(QStringLiteral("The database is not open."));
    const QDir dir(folder);
    if (folder.isEmpty() || !dir.exists())
        return Failure(QStringLiteral("The folder \"%1\" does not exist.").arg(QDir::toNativeSeparators(folder)));

    // A temporary file is made readable by its owner only from the first byte.
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
        return Failure(QStringLiteral("The backup could not be written: %1.").arg(error));

    const QString target = FreeName(dir, tag);
    if (!QFile::rename(partial.fileName(), target))
        return Failure(QStringLiteral("The backup could not be named \"%1\".").arg(QDir::toNativeSeparators(target)));
    partial.setAutoRemove(false);
    Result result;
    result.Ok = true;
    result.Path = target;
    return result;
}

Result WriteRolling(sqlite3* source, const QString& tag) {
    if (!QDir().mkpath(Folder()))
        return Failure(QStringLiteral("The folder \"%1\" could not be made. Check that you may write there.")
                           .arg(QDir::toNativeSeparators(Folder())));
    Result result = WriteBackup(source, Folder(), tag);
    if (result.Ok)
        Prune(gApp().BackupsKept());
    return result;
}

bool RollingBackupDue() {
    const QFileInfoList files = Copies();
    return files.isEmpty() || files.first().lastModified().secsTo(QDateTime::currentDateTime()) > 24 * 60 * 60;
}

Result WriteRollingIfDue(clsDB& db) {
    if (!db.IsOpen() || db.IsReadOnly() || !RollingBackupDue()) {
        Result nothingDue;
        nothingDue.Ok = true;
        return nothingDue;
    }
    return WriteRolling(db.Connection());
}

QList<Entry> List() {
    QList<Entry> entries;
    for (const QFileInfo& file : Copies()) {
        Entry entry;
        entry.Path = file.absoluteFilePath();
        entry.Written = file.lastModified();
        entry.Size = file.size();
        clsDB copy;
        copy.DatabasePath = entry.Path;
        if (copy.OpenReadOnly()) {
            entry.Contacts = Count(copy, QStringLiteral("CONTACT"));
            entry.Invitations = Count(copy, QStringLiteral("INVITE"));
        }
        entries << entry;
    }
    return entries;
}

QString NewestBackup() {
    const QFileInfoList files = Copies();
    return files.isEmpty() ? QString() : files.first().absoluteFilePath();
}

Result Restore(clsDB& live, const QString& file) {
    if (!live.IsOpen() || live.IsReadOnly())
        return Failure(QStringLiteral("The database is not open for changes, so nothing can be restored into it."));
    if (live.InTransaction())
        return Failure(QStringLiteral("The database is in the middle of a change; try again when it is done."));
    clsDB copy;
    copy.DatabasePath = file;
    if (!copy.OpenReadOnly())
        return Failure(QStringLiteral("The backup can't be restored.\n\n") + copy.OpenError());
    if (copy.SchemaVersion() > DbIdentity::kSchemaVersion)
        return Failure(QStringLiteral("The backup \"%1\" was written by a newer version of Vowren; this version "
                                      "can't restore it.")
                           .arg(file));
    const Result before = WriteRolling(live.Connection(), QStringLiteral("before-restore"));
    if (!before.Ok)
        return Failure(before.Error + QStringLiteral("\n\nNothing was restored."));
    QString error;
    if (!CopyPages(copy.Connection(), live.Connection(), &error))
        return Failure(QStringLiteral("The backup could not be restored: %1.\n\nThe database was left as it was; "
                                      "a copy of it is at \"%2\".")
                           .arg(error, before.Path));
    Result result;
    result.Ok = true;
    result.Path = before.Path;
    return result;
}

} // namespace modBackup
