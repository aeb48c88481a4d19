// One line per screen: a page's factory by its index, a dialog's opener by its form name, and a maker for
// the screenshots of anything that is not a page.
#include "app/modKnownScreens.h"

#include "guests/ui/frmContact.h"
#include "guests/ui/frmRemarriedTo.h"
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
#include "shell/options/frmBrideGroomIcons.h"
#include "shell/options/frmOptions.h"
#include "shell/options/frmOptionsEntry.h"
#include "shell/options/frmOptionsEntryMeal.h"
#include "startup/ui/frmMain_00_Home.h"
#include "startup/ui/frmMain_00_Welcome.h"
#include "widgets/ui/modWidgetLinks.h"
#include "widgets/ui/modWidgetPages.h"

#include <QDialog>

namespace {

// The widgets page names a remarried parent's spouse through the guest screens.
void LinkWidgetsToGuests() {
    modWidgetLinks::SetRemarriedOpener([](QWidget* parent, int roleId, QString* contactId) {
        frmRemarriedTo dialog(roleId, parent);
        bool chosen = false;
        QObject::connect(&dialog, &frmRemarriedTo::NameSelected, &dialog, [&](const QString& id) {
            chosen = true;
            *contactId = id;
        });
        dialog.exec();
        return chosen;
    });
}

// Every panel of the options screen, and the small dialogs it opens.
void RegisterOptionsScreenshots() {
    const std::pair<const char*, int> panels[] = {
        {"PaidBy", clsDICT::PaidBy},
        {"Roles", clsDICT::Role},
        {"Songlists", clsDICT::Songlist},
        {"Titles", clsDICT::Title},
        {"VendorCategories", clsDICT::VendorCategory},
        {"Etiquette", frmOptions::Etiquette},
        {"Icons", frmOptions::Icons},
        {"Country", frmOptions::Country},
        {"LabelProgram", frmOptions::LabelProgram},
    };
    for (const auto& [name, kind] : panels)
        modScreenshots::Register(modPages::FormName(modPages::kOptions) + QLatin1Char('_') + QLatin1String(name),
                                 [kind]() -> QWidget* { return new frmOptions(nullptr, kind); });
    modScreenshots::Register(QStringLiteral("frmBrideGroomIcons"),
                             []() -> QWidget* { return new frmBrideGroomIcons(true, 1); });
    modScreenshots::Register(QStringLiteral("frmOptionsEntry"), []() -> QWidget* {
        clsDICT title(clsDICT::Title);
        title.TX = QStringLiteral("Dr.");
        return new frmOptionsEntry(title, false, clsDICT::Title);
    });
    modScreenshots::Register(QStringLiteral("frmOptionsEntryMeal"),
                             []() -> QWidget* { return new frmOptionsEntryMeal(clsDICT(clsDICT::Meal), true); });
}

} // namespace

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
    LinkWidgetsToGuests();
    RegisterReportScreens();

    modScreenshots::Register(QStringLiteral("frmAbout"), [] { return mdiMain::MakeAbout(nullptr); });
    modScreenshots::Register(FormName(kOptions), []() -> QWidget* { return new frmOptions(nullptr); });
    RegisterOptionsScreenshots();
    modScreenshots::Register(QStringLiteral("frmFeatureTour"),
                             []() -> QWidget* { return new frmFeatureTour; });
    modScreenshots::Register(QStringLiteral("frmForums"), []() -> QWidget* { return new frmForums; });
    modScreenshots::Register(QStringLiteral("frmScreenResolution"),
                             []() -> QWidget* { return new frmScreenResolution; });
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
