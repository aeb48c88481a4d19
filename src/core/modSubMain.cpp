#include "core/modSubMain.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/clsVOWREN.h"
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

void ShowUpdateError(const clsDbError& e) {
    ShowMessage(modPatchDriver::UpdateErrorMessage() + QStringLiteral("\r\n\r\n(") + e.Message() + QLatin1Char(')'),
                Msg::OKOnly | Msg::Exclamation);
}

} // namespace

namespace modPatchDriver {

// One failure unit of the driver: the first failure skips the rest and shows the update message.
void Step(std::initializer_list<std::function<void()>> operations) {
    try {
        for (const auto& operation : operations)
            operation();
    } catch (const clsDbError& e) {
        ShowUpdateError(e);
    }
}

// Steps without a handler of their own: each operation stands alone, so one failure neither ends the
// program nor keeps the others from running.
void EachAlone(std::initializer_list<std::function<void()>> operations) {
    for (const auto& operation : operations)
        Step({operation});
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
    Step({[] { clsVOWREN::CreateTable(); }, [] { clsVOWREN::Patch_6_Apply(); }, [] { clsVOWREN::Patch_7_Apply(); }});
    OpenGlobalReads();
    StartSteps().PatchSteps();
    Step({[] { modSchema::CreateMissingIndexes(gDB()); }});
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
    if (gApp().SkipPatches())
        OpenGlobalReads();
    else
        modPatchDriver::Run();
    StartSteps().AfterPatches();
}

bool Start(QString* message) {
    if (!OpenDatabase(message))
        return false;
    RunPatchesAndOpenGlobals();
    return true;
}

} // namespace modSubMain
