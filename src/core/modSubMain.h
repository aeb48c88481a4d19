#pragma once

#include <QString>
#include <functional>
#include <initializer_list>

// The road from the start of the process to the first screen, shared by the desktop program and the
// command line: settings values written, folders made, the database opened (or created when the
// program's own data file is missing), brought up to date, and the global records opened.
namespace modSubMain {

// Steps before the splash: the values for outside readers, the report and playlist folders, the
// database opened. A missing data file of the data root is created fresh; a .connect file that names a
// missing file, a damaged or read-only file end in false with the message the user must see.
bool OpenDatabase(QString* message);

// The splash's work: the patch driver (or only the two reads when patches are skipped), then the
// couple always attending their own wedding. A failed step of the driver is told and undone, and the
// driver goes on; a refused read of the global records throws clsDbError.
void RunPatchesAndOpenGlobals();

// Both, in order. The message is set when it fails.
bool Start(QString* message);

// The starts of the command line. A command that changes the database takes its lock first, waiting up
// to `waitMs` for another program to let go, and is refused when it can't. A command that only reads
// takes the lock when it is free (and starts as usual); otherwise it reads the file as it stands on a
// connection that can't write, without the patch driver.
bool StartForChange(QString* message, int waitMs = 3000);
bool StartForReading(QString* message);

// What the subsystems add to a start. They live above this layer, so the start-up layer registers them
// (once, before the first start); a start without them stops the program as wired wrongly.
struct clsStartSteps {
    // The patch driver's steps for the subsystems' tables, run after the key-value store's own step.
    std::function<void()> PatchSteps;
    // The subsystems' global records, opened after the key-value store, also when patches are skipped.
    std::function<void()> OpenGlobals;
    // What holds after every start, patched or not; `mayWrite` is false for a file that is only read.
    std::function<void(bool mayWrite)> AfterPatches;
};
void RegisterStartSteps(clsStartSteps steps);

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
// One failure unit of the driver, numbered for the message, all or nothing: the first failure undoes the
// step, skips the rest of it and shows the update message (naming the step and the copy written before
// the update); the driver goes on with the next step.
void Step(int step, std::initializer_list<std::function<void()>> operations);
// Operations without a handler of their own: each stands alone, so one failure neither ends the program
// nor keeps the others from running.
void EachAlone(int step, std::initializer_list<std::function<void()>> operations);
// The message a failed step shows.
QString UpdateErrorMessage();

} // namespace modPatchDriver
