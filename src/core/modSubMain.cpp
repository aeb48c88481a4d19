#include "core/modSubMain.h"

#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/clsDICT.h"
#include "core/clsVOWREN.h"
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

void ShowUpdateError(const clsDbError& e) {
    ShowMessage(modPatchDriver::UpdateErrorMessage() + QStringLiteral("\r\n\r\n(") + e.Message() + QLatin1Char(')'),
                Msg::OKOnly | Msg::Exclamation);
}

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
    Step({[] { clsVOWREN::CreateTable(); }, [] { clsVOWREN::Patch_6_Apply(); }, [] { clsVOWREN::Patch_7_Apply(); }});
    OpenGlobalReads();
    Step({[] { clsVENDOR::Patch_Add_FILE_PATH_TX(); }, [] { clsNOTEBOOK::CreateTable(); }});
    Step({[] { clsFLIGHT::CreateTable(); }, [] { clsHOTEL::CreateTable(); }, [] { clsCONTACT::Patch_6_Apply(); },
          [] { clsDINING_TABLE::Patch_6_Apply(); }});
    EachAlone({[] { clsHOTEL::Patch_7_Apply(); }, [] { clsTASK::Patch_7_Apply(); }, [] { clsCONTACT::Patch_7_Apply(); },
          [] { TaskGroupAndEstimates(); }, [] { clsDICT::CreateTable_SONGLIST_DICT(); },
          [] { clsSONG::CreateTable(); }, [] { clsTENTCARD::CreateTable(); }, [] { clsGIFT::Patch_7_Apply(); },
          [] { clsDICT::Patch_MEAL_DICT_Add_PRICE_NB(); }, [] { clsDICT::CreateTable_VENDOR_CATEGORY_DICT(); },
          [] { clsVENDOR::Patch_Add_VENDOR_CATEGORY_ID(); }});
    Step({[] { clsGIFT::Patch_5_Apply(); }});
    Step({[] { clsBUDGET::Patch_4_Apply(); }, [] { clsBUDGET::Patch_7_Apply(); }});
    Step({[] { clsDICT::CreateTable_PAID_BY_DICT(); }, [] { clsBUDGET::Patch_3_Apply(); }});
    Step({[] { clsTIMELINE::CreateTable(); }, [] { clsWORDING::CreateTable(); },
          [] { clsBUDGET_CATEGORY_DICT::CreateTable(); }, [] { clsBUDGET::Patch_2_Apply(); },
          [] { clsDICT::CreateTable_TITLE_DICT(); }, [] { clsINVITE_WIDGET::CreateTable(); },
          [] { clsCONTACT::Patch_2_Apply(); }, [] { clsINVITE::Patch_2_Apply(); }});
    EachAlone({[] { Patch1(); }});
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

void RunPatchesAndOpenGlobals() {
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

} // namespace modSubMain
