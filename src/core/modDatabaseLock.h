#pragma once

#include <QString>

// One writer at a time: a lock file beside the database ("<file>.lock") that the desktop program holds
// while it runs and that the command line takes for the commands that change the database. A lock left
// by a program that has died is taken over.
namespace modDatabaseLock {

// Takes the lock of the database at `databasePath` for the rest of the process, waiting up to `waitMs`
// for another holder to let go. False with `holder` saying who holds it ("Vowren, process 1234 on
// host") when another holds it. Taking it again in the same process is a success; a folder where no lock
// file can be made is no refusal either (opening the database then says what is wrong).
bool Acquire(const QString& databasePath, int waitMs, QString* holder = nullptr);
// Lets it go (a restore or a test that opens another file).
void Release();
// True when this process holds the lock.
bool Held();

// "Another program is using ..., try again" for a command that was refused the lock.
QString InUseMessage(const QString& databasePath, const QString& holder);

} // namespace modDatabaseLock
