#pragma once

#include <QString>
#include <QWidget>
#include <functional>

// The pages of the main window by index, and the dialogs that the frame and the Home page open by name.
// A screen plugs itself in with one call in RegisterKnownScreens (modPagesKnown.cpp); an index without a
// factory is a page that does not exist yet: the frame refuses it, and Home and the menus show it
// disabled with the tooltip "Not available yet".
//
// What a page may offer the frame, found by name when the page is made (all optional):
//   signal  void ShowForm(int index)            change to another page (or 13, the options dialog)
//   signal  void Breadcrumb(const QString& text) levels joined by ">", shown after "Home"; raise it
//                                               when shown (showEvent), not in the constructor
//   slot    void GoToTopLevel()                 the breadcrumb's second link was clicked
namespace modPages {

inline constexpr int kHome = 0;
inline constexpr int kOptions = 13;
inline constexpr int kForums = 99;

using PageFactory = std::function<QWidget*(QWidget* parent)>;
using DialogOpener = std::function<void(QWidget* parent)>;

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
QWidget* CreatePage(int index, QWidget* parent);

// Dialogs by form name ("frmOptions", "frmReports", "frmBackup", "frmAboutSongs" ...).
void RegisterDialog(const QString& formName, DialogOpener opener);
bool HasDialog(const QString& formName);
// Opens the dialog modally; false when nobody has registered it.
bool OpenDialog(const QString& formName, QWidget* parent);

// The tooltip of everything that leads to a screen that is not there yet.
inline QString NotAvailableText() { return QStringLiteral("Not available yet"); }

// Forgets every registration (tests).
void Clear();

// Registers the screens that the program holds; called once by the program and by tests.
void RegisterKnownScreens();

} // namespace modPages
