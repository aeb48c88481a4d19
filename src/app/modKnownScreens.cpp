// One line per screen: a page's factory by its index, a dialog's opener by its form name, and a maker for
// the screenshots of anything that is not a page.
#include "app/modKnownScreens.h"

#include "guests/ui/modGuestPages.h"
#include "planning/ui/modPlanningPages.h"
#include "reports/ui/modReportDialogs.h"
#include "seating/ui/modSeatingPages.h"
#include "shell/frmFeatureTour.h"
#include "shell/frmForums.h"
#include "shell/frmMain_99_Forums.h"
#include "shell/frmScreenResolution.h"
#include "shell/grid/frmCustomizeColumns.h"
#include "shell/grid/usrGrid.h"
#include "shell/mdiMain.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"
#include "shell/options/frmBackup.h"
#include "shell/options/frmOptions.h"
#include "startup/ui/frmMain_00_Home.h"
#include "startup/ui/frmMain_00_Welcome.h"
#include "widgets/ui/modWidgetPages.h"

#include <QDialog>

void RegisterKnownScreens() {
    using namespace modPages;
    RegisterPage(kHome, [](QWidget* parent) { return new frmMain_00_Home(parent); });
    RegisterPage(kForums, [](QWidget* parent) { return new frmMain_99_Forums(parent); });
    RegisterWelcome([](QWidget* parent) { return new frmMain_00_Welcome(parent); });
    RegisterDialog(FormName(kOptions), [](QWidget* parent) { ShowOptions(parent); });
    RegisterDialog(QStringLiteral("frmBackup"), [](QWidget* parent) { ShowBackup(parent); });
    RegisterDialog(QStringLiteral("frmReports"), [](QWidget* parent) { ShowReports(parent, 0, 0); });
    RegisterReports(ShowReports);
    RegisterGuestPages();
    RegisterSeatingPages();
    RegisterPlanningPages();
    RegisterWidgetPages();
    RegisterReportScreens();

    modScreenshots::Register(QStringLiteral("frmAbout"), [] { return mdiMain::MakeAbout(nullptr); });
    modScreenshots::Register(FormName(kOptions), []() -> QWidget* { return new frmOptions(nullptr); });
    modScreenshots::Register(QStringLiteral("frmFeatureTour"), []() -> QWidget* { return new frmFeatureTour; });
    modScreenshots::Register(QStringLiteral("frmForums"), []() -> QWidget* { return new frmForums; });
    modScreenshots::Register(QStringLiteral("frmScreenResolution"), []() -> QWidget* { return new frmScreenResolution; });
    modScreenshots::Register(QStringLiteral("frmBackup"), []() -> QWidget* { return new frmBackup; });
    // The columns of the guest list; the page goes with the dialog.
    modScreenshots::Register(QStringLiteral("frmCustomizeColumns"), []() -> QWidget* {
        QWidget* page = CreatePage(1, nullptr);
        auto* grid = page ? page->findChild<usrGrid*>() : nullptr;
        if (!grid) {
            delete page;
            return nullptr;
        }
        auto* dialog = new frmCustomizeColumns(grid);
        page->setParent(dialog);
        page->hide();
        return dialog;
    });
}
