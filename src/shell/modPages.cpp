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

modPages::PageFactory& Welcome() {
    static modPages::PageFactory welcome;
    return welcome;
}

modPages::ReportOpener& Reports() {
    static modPages::ReportOpener reports;
    return reports;
}

QHash<QString, modPages::PageFactory>& SubPages() {
    static QHash<QString, modPages::PageFactory> subPages;
    return subPages;
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

usrPage* CreatePage(int index, QWidget* parent) {
    const auto found = Factories().constFind(index);
    return found == Factories().constEnd() ? nullptr : (*found)(parent);
}

void RegisterSubPage(const QString& formName, PageFactory factory) {
    if (factory)
        SubPages().insert(formName, std::move(factory));
    else
        SubPages().remove(formName);
}

bool HasSubPage(const QString& formName) { return SubPages().contains(formName); }

usrPage* CreateSubPage(const QString& formName, QWidget* parent) {
    const auto found = SubPages().constFind(formName);
    return found == SubPages().constEnd() ? nullptr : (*found)(parent);
}

void RegisterWelcome(PageFactory factory) { Welcome() = std::move(factory); }

usrPage* CreateWelcome(QWidget* parent) { return Welcome() ? Welcome()(parent) : nullptr; }

void RegisterReports(ReportOpener opener) { Reports() = std::move(opener); }

void OpenReports(QWidget* parent, int sectionKey, int filterIndex) {
    if (Reports())
        Reports()(parent, sectionKey, filterIndex);
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
    SubPages().clear();
    Dialogs().clear();
    Welcome() = nullptr;
    Reports() = nullptr;
}

} // namespace modPages
