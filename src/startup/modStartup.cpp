#include "startup/modStartup.h"

#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/clsDICT.h"
#include "core/modSubMain.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "planning/ChecklistSeed.h"
#include "planning/clsBUDGET.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsEVENT.h"
#include "planning/clsGIFT.h"
#include "planning/clsNOTEBOOK.h"
#include "planning/clsTASK.h"
#include "planning/clsTIMELINE.h"
#include "planning/clsVENDOR.h"
#include "seating/clsDINING_TABLE.h"
#include "seating/clsFLIGHT.h"
#include "seating/clsHOTEL.h"
#include "seating/clsSEATING_RULE.h"
#include "seating/clsTENTCARD.h"
#include "startup/clsApp_Counters.h"
#include "widgets/clsINVITE_WIDGET.h"
#include "widgets/clsSONG.h"
#include "widgets/clsWORDING.h"

namespace {

using modPatchDriver::EachAlone;
using modPatchDriver::Step;

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
            {clsBUDGET_CATEGORY_DICT::TotalSumActual(id).Stored(), id});
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

// The driver's steps after the key-value store's, newest first as they have always run.
void PatchSteps() {
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
    Step(10, {[] { clsSEATING_RULE::CreateTable(); }});
}

// The couple always attend their own wedding; a file that may not be written is only read.
void CoupleAttends(clsCONTACT& person, const char* key, bool mayWrite) {
    person.OpenRecord(QString::fromLatin1(key));
    if (mayWrite && !person.CONTACT_ID.isEmpty() && person.ATTENDING_FG != QLatin1String("Y")) {
        person.ATTENDING_FG = QStringLiteral("Y");
        person.Save(false, false);
    }
}

} // namespace

namespace modStartup {

void RegisterSubsystems() {
    clsApp::SetCounters(std::make_unique<clsApp_Counters>());
    RegisterChecklistSeed();
    modSubMain::RegisterStartSteps({
        .PatchSteps = PatchSteps,
        .OpenGlobals = [] { gWeddingEvent().OpenRecord(QStringLiteral("1")); },
        .AfterPatches =
            [](bool mayWrite) {
                CoupleAttends(gBride(), "1", mayWrite);
                CoupleAttends(gGroom(), "2", mayWrite);
            },
    });
}

} // namespace modStartup
