#include "shell/modPages.h"

#include <QHash>
#include <QMap>

namespace {

struct PageName {
    int Index;
    const char* Form;
    const char* Caption;
    const char* Icon;
};

constexpr PageName kPages[] = {
    {0, "frmMain_00_Home", "Home", "home"},
    {1, "frmMain_01_Contacts", "Contacts", "contacts"},
    {2, "frmMain_02_Invitations", "Invitations", "invitations"},
    {3, "frmMain_03_RSVPs", "RSVPs", "rsvps"},
    {4, "frmMain_04_Attendees", "Attendees", "attendees"},
    {5, "frmMain_05_Gifts", "Gifts", "gifts"},
    {6, "frmMain_06_Checklist", "Checklist", "checklist"},
    {7, "frmMain_07_Budget", "Budget", "budget"},
    {8, "frmMain_08_Vendors", "Vendors", "vendors"},
    {9, "frmMain_09_Timelines", "Timelines", "timelines"},
    {10, "frmMain_10_Notebook", "Notebook", "notebook"},
    {11, "frmMain_11_Events", "Events", "events"},
    {12, "frmMain_12_Widgets", "Wedding Widgets", "widgets"},
    {13, "frmOptions", "Options", "options"},
    {99, "frmMain_99_Forums", "Forums", "forums"},
};

const PageName* Find(int index) {
    for (const PageName& page : kPages)
        if (page.Index == index)
            return &page;
    return nullptr;
}

QMap<int, modPages::PageFactory>& Factories() {
    static QMap<int, modPages::PageFactory> factories;
    return factories;
}

QHash<QString, modPages::DialogOpener>& Dialogs() {
    static QHash<QString, modPages::DialogOpener> dialogs;
    return dialogs;
}

} // namespace

namespace modPages {

const QList<int>& PageIndexes() {
    static const QList<int> indexes = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 99};
    return indexes;
}

QString FormName(int index) {
    const PageName* page = Find(index);
    return page ? QString::fromLatin1(page->Form) : QString();
}

QString Caption(int index) {
    const PageName* page = Find(index);
    return page ? QString::fromLatin1(page->Caption) : QString();
}

QString IconName(int index) {
    const PageName* page = Find(index);
    return page ? QString::fromLatin1(page->Icon) : QString();
}

void RegisterPage(int index, PageFactory factory) {
    if (factory)
        Factories().insert(index, std::move(factory));
    else
        Factories().remove(index);
}

bool IsAvailable(int index) {
    if (index == kOptions)
        return HasDialog(FormName(kOptions));
    return Factories().contains(index);
}

QWidget* CreatePage(int index, QWidget* parent) {
    const auto found = Factories().constFind(index);
    return found == Factories().constEnd() ? nullptr : (*found)(parent);
}

void RegisterDialog(const QString& formName, DialogOpener opener) {
    if (opener)
        Dialogs().insert(formName, std::move(opener));
    else
        Dialogs().remove(formName);
}

bool HasDialog(const QString& formName) { return Dialogs().contains(formName); }

bool OpenDialog(const QString& formName, QWidget* parent) {
    const auto found = Dialogs().constFind(formName);
    if (found == Dialogs().constEnd())
        return false;
    (*found)(parent);
    return true;
}

void Clear() {
    Factories().clear();
    Dialogs().clear();
}

} // namespace modPages

// ---- The screens of the program ----------------------------------------------------------------------
// One line per screen: a page's factory by its index, a dialog's opener by its form name, and a maker for
// the screenshots of anything that is not a page.

#include "guests/ui/modGuestPages.h"
#include "reports/ui/modReportDialogs.h"
#include "shell/frmFeatureTour.h"
#include "shell/frmForums.h"
#include "shell/frmMain_00_Home.h"
#include "shell/frmMain_99_Forums.h"
#include "shell/frmScreenResolution.h"
#include "shell/grid/frmCustomizeColumns.h"
#include "shell/grid/usrGrid.h"
#include "shell/mdiMain.h"
#include "shell/modScreenshots.h"
#include "shell/options/frmBackup.h"
#include "shell/options/frmOptions.h"

#include <QDialog>

void modPages::RegisterKnownScreens() {
    RegisterPage(kHome, [](QWidget* parent) { return new frmMain_00_Home(parent); });
    RegisterPage(kForums, [](QWidget* parent) { return new frmMain_99_Forums(parent); });
    RegisterDialog(FormName(kOptions), [](QWidget* parent) { ShowOptions(parent); });
    RegisterDialog(QStringLiteral("frmBackup"), [](QWidget* parent) { ShowBackup(parent); });
    RegisterDialog(QStringLiteral("frmReports"), [](QWidget* parent) { ShowReports(parent, 0, 0); });
    RegisterGuestPages();
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
