#pragma once

#include <QString>

// One desktop window per database. The first Vowren on a file holds its lock and listens for a second
// one; a second start says who holds the file and offers to bring that window forward or to quit.
namespace modSingleInstance {

// True when this process may go on with the database at `databasePath` (it now holds the lock). False
// when another Vowren holds it: the user has been asked, and the other window raised if they chose so.
bool Claim(const QString& databasePath);

} // namespace modSingleInstance
