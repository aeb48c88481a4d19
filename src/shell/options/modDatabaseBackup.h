#pragma once

#include <QString>

struct sqlite3;

// A copy of the open database written while the program runs: the engine's online backup copies a
// consistent picture of every page into a temporary file beside the target, checks it, and only then
// gives it its final name. A failure leaves no file behind, never a half-written one.
namespace modDatabaseBackup {

struct Result {
    bool Ok = false;
    QString Path;  // the file written
    QString Error; // what went wrong, in words for the user
};

// "Vowren_" + the time stamp of reports + ".quilldata".
QString BackupFileName();

// Writes the copy into the folder under BackupFileName() (with "_2", "_3", ... behind the stamp when
// that name is taken). The copy is readable by its owner only, like the database itself.
Result WriteBackup(sqlite3* source, const QString& folder);

} // namespace modDatabaseBackup
