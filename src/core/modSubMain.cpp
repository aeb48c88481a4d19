#include "core/modSubMain.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/clsDICT.h"
#include "core/clsVOWREN.h"
#include "core/modBackup.h"
#include "core/modDatabaseLock.h"
#include "core/modGeneral.h"
#include "core/modSchema.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "planning/clsBUDGET.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsEVENT.h"
#include "planning/clsGIFT.h"
#include "planning/clsNOTEBOOK.h"
#include "planning/clsTASK.h"
#include "planning/clsTIMELINE.h"
#include "planning/clsVENDOR.h"
#include "platform/VowrenPaths.h"
#include "platform/clsRegistry.h"
#include "seating/clsDINING_TABLE.h"
#include "seating/clsFLIGHT.h"
#include "seating/clsHOTEL.h"
#include "seating/clsTENTCARD.h"
#include "widgets/clsINVITE_WIDGET.h"
#include "widgets/clsSONG.h"
#include "widgets/clsWORDING.h"

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

// One failure unit of the driver, all or nothing: the first failure undoes the step, skips the rest of
// it and shows the update message; the driver goes on with the next step.
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

// Steps without a handler of their own: each operation stands alone, so one failure neither ends the
// program nor keeps the others from running.
void EachAlone(int step, std::initializer_list<std::function<void()>> operations) {
    for (const auto& operation : operations)
        Step(step, {operation});
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

// Row 0 of the time frames came with the estimates; a database without it gets both.
void TaskGroupAndEstimates() {
    clsDICT group;
    group.DICT_TYPE = 7;
    group.OpenRecord(QStringLiteral("0"));
    if (!group.TX.trimmed().isEmpty())
        return;
    clsTransaction tx(gDB());
    gDB().Execute(QStringLiteral("INSERT INTO TASK_GROUP_DICT (TASK_GROUP_ID, TASK_GROUP_TX) VALUES (0, '1 year+')"));
    // A file older than the budget categories has no estimates to fill.
    if (!gDB().TableExists(QStringLiteral("BUDGET_CATEGORY_DICT")) ||
        !gDB().FieldExists(QStringLiteral("BUDGET"), QStringLiteral("BUDGET_CATEGORY_ID"))) {
        tx.Commit();
        return;
    }
    const clsRecordset zero = gDB().Execute(
        QStringLiteral("SELECT BUDGET_CATEGORY_ID FROM BUDGET_CATEGORY_DICT WHERE ESTIMATE_AMOUNT_NB = 0"));
    for (int i = 0; i < zero.RowCount(); ++i) {
        const QString id = zero.Value(i, 0);
        gDB().Execute(
            QStringLiteral("UPDATE BUDGET_CATEGORY_DICT SET ESTIMATE_AMOUNT_NB = ? WHERE BUDGET_CATEGORY_ID = ?"),
            {clsBUDGET_CATEGORY_DICT::TotalSumActual(id), id});
    }
    tx.Commit();
}

// Address parts joined into one block, once per machine: the flag lives in the settings.
void Patch1() {
    if (gApp().Patch_1_Applied())
        return;
    clsCONTACT::Patch_1_Apply();
    clsEVENT::Patch_1_Apply();
    clsVENDOR::Patch_1_Apply();
    gApp().SetPatch_1_Applied(true);
}

void OpenGlobalReads() {
    gWeddingEvent().OpenRecord(QStringLiteral("1"));
    gVowren().OpenRecords();
}

void CoupleAttends(clsCONTACT& person, const char* key) {
    RecordIO::Attempt([&person, key] {
        person.OpenRecord(QString::fromLatin1(key));
        if (!person.CONTACT_ID.isEmpty() && person.ATTENDING_FG != QLatin1String("Y")) {
            person.ATTENDING_FG = QStringLiteral("Y");
            person.Save(false, false);
        }
    });
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
    Step(3, {[] { clsVENDOR::Patch_Add_FILE_PATH_TX(); }, [] { clsNOTEBOOK::CreateTable(); }});
    Step(4, {[] { clsFLIGHT::CreateTable(); }, [] { clsHOTEL::CreateTable(); }, [] { clsCONTACT::Patch_6_Apply(); },
          [] { clsDINING_TABLE::Patch_6_Apply(); }});
    EachAlone(5, {[] { clsHOTEL::Patch_7_Apply(); }, [] { clsTASK::Patch_7_Apply(); }, [] { clsCONTACT::Patch_7_Apply(); },
          [] { TaskGroupAndEstimates(); }, [] { clsDICT::CreateTable_SONGLIST_DICT(); },
          [] { clsSONG::CreateTable(); }, [] { clsTENTCARD::CreateTable(); }, [] { clsGIFT::Patch_7_Apply(); },
          [] { clsDICT::Patch_MEAL_DICT_Add_PRICE_NB(); }, [] { clsDICT::CreateTable_VENDOR_CATEGORY_DICT(); },
          [] { clsVENDOR::Patch_Add_VENDOR_CATEGORY_ID(); }});
    Step(6, {[] { clsGIFT::Patch_5_Apply(); }});
    Step(7, {[] { clsBUDGET::Patch_4_Apply(); }, [] { clsBUDGET::Patch_7_Apply(); }});
    Step(8, {[] { clsDICT::CreateTable_PAID_BY_DICT(); }, [] { clsBUDGET::Patch_3_Apply(); }});
    Step(9, {[] { clsTIMELINE::CreateTable(); }, [] { clsWORDING::CreateTable(); },
          [] { clsBUDGET_CATEGORY_DICT::CreateTable(); }, [] { clsBUDGET::Patch_2_Apply(); },
          [] { clsDICT::CreateTable_TITLE_DICT(); }, [] { clsINVITE_WIDGET::CreateTable(); },
          [] { clsCONTACT::Patch_2_Apply(); }, [] { clsINVITE::Patch_2_Apply(); }});
    EachAlone(10, {[] { Patch1(); }});
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

void RunPatchesAndOpenGlobals() {
    if (gDB().IsReadOnly()) {
        // A file read as it is (a newer Vowren's, or one another program is changing): nothing is
        // written, not even the couple's attendance.
        OpenGlobalReads();
        gBride().OpenRecord(QStringLiteral("1"));
        gGroom().OpenRecord(QStringLiteral("2"));
        return;
    }
    if (gApp().SkipPatches())
        OpenGlobalReads();
    else
        modPatchDriver::Run();
    CoupleAttends(gBride(), "1");
    CoupleAttends(gGroom(), "2");
}

bool Start(QString* message) {
    if (!OpenDatabase(message))
        return false;
    RunPatchesAndOpenGlobals();
    return true;
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
    RunPatchesAndOpenGlobals();
    return true;
}

} // namespace modSubMain
