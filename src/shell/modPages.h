#pragma once

#include "shell/usrPage.h"

#include <QString>
#include <functional>

// The pages of the main window by index, and the dialogs that the frame and the pages open by name. The
// frame knows no subsystem: the programs plug every screen in at start (RegisterKnownScreens of app/).
// An index without a factory is a page that does not exist yet: the frame refuses it, and Home and the
// menus show it disabled with the tooltip "Not available yet". What a page tells the frame is told by
// the signals of usrPage.
namespace modPages {

inline constexpr int kHome = 0;
inline constexpr int kOptions = 13;
inline constexpr int kForums = 99;

// The sub-pages of the attendees page (4), by form name.
inline constexpr int kAttendees = 4;
inline QString TablesSubPage() { return QStringLiteral("frmMain_04_Attendees_Tables"); }
inline QString HotelsSubPage() { return QStringLiteral("frmMain_04_Attendees_Hotels"); }
inline QString FlightsSubPage() { return QStringLiteral("frmMain_04_Attendees_Flights"); }
inline QString TentcardsSubPage() { return QStringLiteral("frmMain_04_Attendees_Tentcards"); }

using PageFactory = std::function<usrPage*(QWidget* parent)>;
using DialogOpener = std::function<void(QWidget* parent)>;
// Opens the report screen on a section and a filter row (the keys of the report catalogue).
using ReportOpener = std::function<void(QWidget* parent, int sectionKey, int filterIndex)>;

// Every index the frame knows, in menu order: 0 to 12, then 99.
const QList<int>& PageIndexes();
// "frmMain_03_RSVPs"; frmOptions for 13; empty for an unknown index.
QString FormName(int index);
// The page's name as the user reads it: "Home", "Contacts", "RSVPs" ...
QString Caption(int index);
// The name of the page's picture among the shell's ("contacts"; see mdiMain::ShellIcon).
QString IconName(int index);

void RegisterPage(int index, PageFactory factory);
bool IsAvailable(int index);
// A new instance of the page; nullptr when the index has no factory.
usrPage* CreatePage(int index, QWidget* parent);

// The steps a new database shows instead of Home.
void RegisterWelcome(PageFactory factory);
usrPage* CreateWelcome(QWidget* parent);

// Sub-pages by form name ("frmMain_04_Attendees_Tables" ...): a page shown over the page that opened it,
// which gets it back when the sub-page goes (usrPage::SubPageClosed).
void RegisterSubPage(const QString& formName, PageFactory factory);
bool HasSubPage(const QString& formName);
// A new instance of the sub-page; nullptr when nobody has registered it.
usrPage* CreateSubPage(const QString& formName, QWidget* parent);

// Dialogs by form name ("frmOptions", "frmReports", "frmBackup", "frmAboutSongs" ...).
void RegisterDialog(const QString& formName, DialogOpener opener);
bool HasDialog(const QString& formName);
// Opens the dialog modally; false when nobody has registered it.
bool OpenDialog(const QString& formName, QWidget* parent);

// The report screen every list page's print command leads to; nothing happens while none is registered.
void RegisterReports(ReportOpener opener);
void OpenReports(QWidget* parent, int sectionKey, int filterIndex);

// The tooltip of everything that leads to a screen that is not there yet.
inline QString NotAvailableText() { return QStringLiteral("Not available yet"); }

// Forgets every registration (tests).
void Clear();

} // namespace modPages
