#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

class clsDB;
struct sqlite3;

// Copies of the database written while the program runs. The engine's online backup copies a consistent
// picture of every page into a temporary file beside the target, checks it, and only then gives it its
// final name: a failure leaves no file behind, never a half-written one. Copies are readable by their
// owner only, like the database itself.
namespace modBackup {

struct Result {
    bool Ok = false;
    QString Path;  // the file written
    QString Error; // what went wrong, in words for the user
};

// One backup in the backup folder.
struct Entry {
    QString Path;
    QDateTime Written;
    qint64 Size = 0;
    long Contacts = -1; // -1 when the copy could not be read
    long Invitations = -1;
};

// How long a copy waits for another program that holds the database before it gives up.
inline constexpr int kBusyWaitMs = 10000;

// Database/Backups below the data root.
QString Folder();
// "Vowren_" + the time stamp of reports + ".quilldata"; with a tag, "Vowren_" + tag + "_" + stamp.
QString BackupFileName(const QString& tag = {});

// Writes a copy of the open database into the folder under BackupFileName(tag) (with "_2", "_3", ...
// behind the stamp when that name is taken).
Result WriteBackup(sqlite3* source, const QString& folder, const QString& tag = {});
// A copy into Folder(), then only the newest clsApp::BackupsKept() copies are kept.
Result WriteRolling(sqlite3* source, const QString& tag = {});
// True when the newest copy in Folder() is more than a day old, or there is none.
bool RollingBackupDue();
// WriteRolling when one is due and the database can be changed; a success when none is due.
Result WriteRollingIfDue(clsDB& db);

// The copies in Folder(), newest first, with their counts of contacts and invitations.
QList<Entry> List();
// The path of the newest copy, or "" when there is none.
QString NewestBackup();

// Puts the copy in `file` in place of the open database, page by page through the live connection
// (never by copying files over a database that may have a journal beside it), after writing one more
// copy of the present state. A file that is damaged, another program's or a newer Vowren's is refused
// and nothing changes. The database keeps the shape of the copy: run the patch driver afterwards.
Result Restore(clsDB& live, const QString& file);

} // namespace modBackup
