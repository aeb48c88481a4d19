#include "core/modSubMain.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/clsVOWREN.h"
#include "core/modBackup.h"
#include "core/modDatabaseLock.h"
#include "core/modGeneral.h"
#include "core/modSchema.h"
#include "platform/VowrenPaths.h"
#include "platform/clsRegistry.h"

#include <functional>
#include <initializer_list>

namespace {

QString DefaultDataFile() { return VowrenPaths::Join(VowrenPaths::DataRoot(), QStringLiteral("Database/Vowren.quilldata")); }

// A file with no tables at all (a zero-byte file left by a full disk, say) holds nothing to lose.
bool HoldsNoTables(clsDB& db) {
    return db.Execute(QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE type = 'table'")).Scalar() == "0";
}

// What the driver tells when a step fails: which step, that it was undone, and where the copy is.
struct DriverState {
    QString BackupPath;
    bool Failed = false;
};
DriverState& Driver() {
    static DriverState state;
    return state;
}

void ShowUpdateError(int step, const clsDbError& e) {
    Driver().Failed = true;
    QString text = modPatchDriver::UpdateErrorMessage() + QStringLiteral("\r\n\r\n(") + e.Message() +
                   QStringLiteral(")\r\n\r\nStep %1 of the update failed and was undone: the database is as it was "
                                  "before that step.")
                       .arg(step);
    if (!Driver().BackupPath.isEmpty())
        text += QStringLiteral(" A copy from before the update is at:\r\n") + Driver().BackupPath;
    ShowMessage(text, Msg::OKOnly | Msg::Exclamation);
}

// A file older than this program gets a copy before anything in it changes. False when the copy could
// not be written: then nothing is changed.
bool BackUpBeforeUpdate() {
    Driver() = DriverState();
    const int version = gDB().SchemaVersion();
    if (version >= DbIdentity::kSchemaVersion || HoldsNoTables(gDB()))
        return true;
    const modBackup::Result copy =
        modBackup::WriteRolling(gDB().Connection(), QStringLiteral("v%1-before-update").arg(version));
    if (!copy.Ok) {
        ShowMessage(QStringLiteral("This database needs an update, but Vowren could not first write a copy of it "
                                   "(%1)\r\n\r\nThe database was not changed. Free some space or check the folder "
                                   "\"%2\", then start Vowren again.")
                        .arg(copy.Error, modBackup::Folder()),
                    Msg::OKOnly | Msg::Exclamation);
        return false;
    }
    Driver().BackupPath = copy.Path;
    return true;
}

} // namespace

namespace modPatchDriver {

void Step(int step, std::initializer_list<std::function<void()>> operations) {
    try {
        clsSchemaChange change(gDB());
        for (const auto& operation : operations)
            operation();
        change.Commit();
    } catch (const clsDbError& e) {
        ShowUpdateError(step, e);
    }
}

void EachAlone(int step, std::initializer_list<std::function<void()>> operations) {
    for (const auto& operation : operations)
        Step(step, {operation});
}

} // namespace modPatchDriver

namespace {

using modSubMain::clsStartSteps;

clsStartSteps& Registered() {
    static clsStartSteps steps;
    return steps;
}

const clsStartSteps& StartSteps() {
    const clsStartSteps& steps = Registered();
    if (!steps.PatchSteps || !steps.OpenGlobals || !steps.AfterPatches)
        qFatal("modSubMain: a start was run before the start-up layer registered the subsystems' steps");
    return steps;
}

void OpenGlobalReads() {
    StartSteps().OpenGlobals();
    gVowren().OpenRecords();
}

} // namespace

namespace modPatchDriver {

QString UpdateErrorMessage() {
    return QStringLiteral("Database update error.\r\n\r\nPlease contact Quill Software.\r\n\r\n") +
           modSubMain::SupportEmail() + QStringLiteral("\r\n") + modSubMain::SupportPhone();
}

void Run() {
    if (!BackUpBeforeUpdate()) {
        OpenGlobalReads();
        return;
    }
    Step(1, {[] { clsVOWREN::CreateTable(); }, [] { clsVOWREN::Patch_6_Apply(); }, [] { clsVOWREN::Patch_7_Apply(); }});
    OpenGlobalReads();
    StartSteps().PatchSteps();
    Step(11, {[] { modSchema::CreateMissingIndexes(gDB()); }});
    // Only a file that every step brought up to date is marked as current; another start tries again.
    if (!Driver().Failed)
        Step(12, {[] { gDB().StampIdentity(DbIdentity::kSchemaVersion); }});
}

} // namespace modPatchDriver

namespace modSubMain {

QString SupportEmail() {
    return gRegistry().GetSetting(clsApp::RootKey(), QStringLiteral("SupportEmail"), QStringLiteral("help@vowren.app"));
}

QString SupportPhone() {
    return gRegistry().GetSetting(clsApp::RootKey(), QStringLiteral("SupportPhone"), QStringLiteral("+1 555 0100"));
}

QString ConnectFailureMessage(const QString& path, const QString& reason) {
    QString text = QStringLiteral("Unable to connect to database: ") + path;
    if (!reason.isEmpty())
        text += QStringLiteral("\n\n") + reason;
    return text + QStringLiteral("\n\nPlease e-mail: ") + SupportEmail();
}

bool OpenDatabase(QString* message) {
    gApp().WriteStartValues();
    gApp().MakeReportPath();
    gApp().MakePlaylistPath();
    const QString path = gApp().DatabasePath();
    clsDB& db = gDB();
    db.CloseConnection();
    db.DatabasePath = path;
    QString reason;
    // Only the program's own data file is made afresh; a file named elsewhere is never invented.
    if (path == DefaultDataFile() && !FileExists(path) && !modSchema::CreateDatabaseFile(path, &reason)) {
        if (message)
            *message = ConnectFailureMessage(path, reason);
        return false;
    }
    if (!db.OpenConnection()) {
        if (message)
            *message = ConnectFailureMessage(path, db.OpenError());
        return false;
    }
    try {
        if (HoldsNoTables(db))
            modSchema::CreateCurrentSchema(db);
    } catch (const clsDbError& e) {
        db.CloseConnection();
        if (message)
            *message = ConnectFailureMessage(path, e.Message());
        return false;
    }
    return true;
}

void RegisterStartSteps(clsStartSteps steps) { Registered() = std::move(steps); }

void RunPatchesAndOpenGlobals() {
    if (gDB().IsReadOnly()) {
        // A file read as it is (a newer Vowren's, or one another program is changing): nothing is
        // written, not even the couple's attendance.
        OpenGlobalReads();
        StartSteps().AfterPatches(false);
        return;
    }
    if (gApp().SkipPatches())
        OpenGlobalReads();
    else
        modPatchDriver::Run();
    StartSteps().AfterPatches(true);
}

// The reads of a start: false with the database's words when it refuses them.
static bool ReadGlobals(QString* message) {
    try {
        RunPatchesAndOpenGlobals();
        return true;
    } catch (const clsDbError& e) {
        if (message)
            *message = ConnectFailureMessage(gDB().DatabasePath, e.Message());
        return false;
    }
}

bool Start(QString* message) {
    return OpenDatabase(message) && ReadGlobals(message);
}

bool StartForChange(QString* message, int waitMs) {
    const QString path = gApp().DatabasePath();
    QString holder;
    if (!modDatabaseLock::Acquire(path, waitMs, &holder)) {
        if (message)
            *message = modDatabaseLock::InUseMessage(path, holder);
        return false;
    }
    if (!Start(message))
        return false;
    if (gDB().IsReadOnly()) {
        if (message)
            *message = gDB().OpenNotice();
        return false;
    }
    return true;
}

bool StartForReading(QString* message) {
    const QString path = gApp().DatabasePath();
    if (modDatabaseLock::Acquire(path, 0))
        return Start(message);
    clsDB& db = gDB();
    db.CloseConnection();
    db.DatabasePath = path;
    if (!db.OpenReadOnly()) {
        if (message)
            *message = ConnectFailureMessage(path, db.OpenError());
        return false;
    }
    if (db.SchemaVersion() < DbIdentity::kSchemaVersion) {
        db.CloseConnection();
        if (message)
            *message = QStringLiteral("The database \"%1\" needs an update that Vowren makes when it starts, and "
                                      "another program is using it now.\n\nClose that program and try again.")
                           .arg(path);
        return false;
    }
    return ReadGlobals(message);
}

} // namespace modSubMain
