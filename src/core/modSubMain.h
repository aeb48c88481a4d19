#pragma once

#include <QString>

// The road from the start of the process to the first screen, shared by the desktop program and the
// command line: settings values written, folders made, the database opened (or created when the
// program's own data file is missing), brought up to date, and the global records opened.
namespace modSubMain {

// Steps before the splash: the values for outside readers, the report and playlist folders, the
// database opened. A missing data file of the data root is created fresh; a .connect file that names a
// missing file, a damaged or read-only file end in false with the message the user must see.
bool OpenDatabase(QString* message);

// The splash's work: the patch driver (or only the two reads when patches are skipped), then the
// couple always attending their own wedding.
void RunPatchesAndOpenGlobals();

// Both, in order. The message is set when it fails.
bool Start(QString* message);

// The starts of the command line. A command that changes the database takes its lock first, waiting up
// to `waitMs` for another program to let go, and is refused when it can't. A command that only reads
// takes the lock when it is free (and starts as usual); otherwise it reads the file as it stands on a
// connection that can't write, without the patch driver.
bool StartForChange(QString* message, int waitMs = 3000);
bool StartForReading(QString* message);

// "Unable to connect to database: " + the path, the reason, and where to write for help.
QString ConnectFailureMessage(const QString& path, const QString& reason);

QString SupportEmail();
QString SupportPhone();

} // namespace modSubMain

// The schema patches that bring a database of any older shape to the current one. Each of steps 1, 3, 4,
// 6, 7, 8 and 9 is one failure unit: a failure skips the rest of its step, shows the database update
// message, and the driver goes on with the next step.
namespace modPatchDriver {

void Run();
// The message a failed step shows.
QString UpdateErrorMessage();

} // namespace modPatchDriver
