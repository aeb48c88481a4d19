#pragma once

#include "reports/clsReportRoute.h"

#include <QIcon>
#include <QString>
#include <functional>
#include <memory>

class QPrinter;
class QWidget;
class clsPdfDialect;

// The screens' side of running reports: the entry point every page's print command calls, the dialogs
// a report row can lead to (registered by name, as the routes name them), and the one way a report is
// built and handed to the desktop.

// Opens the report screen on a section (clsReportCatalogue::SectionKey) and a filter row key; keys that
// don't occur leave the first section selected.
void ShowReports(QWidget* parent, int sectionKey, int filterIndex);

// Plugs the report screens into the program: the report classes, the dialogs a report row leads to, and
// the pictures of the report dialogs for `vowren --screenshots`. Called once at start.
void RegisterReportScreens();

namespace ReportDialogs {

// Opens a dialog that asks for more and then starts the report itself.
using Opener = std::function<void(QWidget* parent, const clsReportRoute& route)>;

// A second registration of the same name replaces the first. The custom filter registers itself.
void Register(const QString& dialogName, Opener opener);
void Unregister(const QString& dialogName);
bool Exists(const QString& dialogName);
// False when no dialog of the route's name is registered.
bool Open(QWidget* parent, const clsReportRoute& route);
// Registers the dialogs of this folder; safe to call more than once.
void RegisterOwnDialogs();

// Whether the external label program takes over labels and tent cards; none is set up by default.
void SetLabelDeskActive(std::function<bool()> isActive);
bool LabelDeskActive();

// Can the screen carry the route out: its class is registered, and the dialog it needs, if any?
bool RouteAvailable(const clsReportRoute& route);

// Builds the route's report under a wait cursor and opens the file with the desktop. Gives back the
// file written, or empty when nothing was written.
QString BuildAndShow(const clsReportRoute& route);
// Hands a written file to the desktop, or says why it could not be opened; nothing for an empty name.
void ShowWritten(const QString& file);
// What a screen's status line says after BuildAndShow: the file opened, or that none was written.
QString WrittenStatus(const QString& file);
// The route's report laid out in pages (in the paper and font the settings hold now) with no file
// written; null when it could not be laid out (the user has been told why).
std::unique_ptr<clsPdfDialect> LayOut(const clsReportRoute& route);
// Paints the pages onto the printer, which takes their paper and orientation. False when it failed.
bool PrintPages(const clsPdfDialect& pages, QPrinter& printer);
// Shows the route's pages in the print preview; nothing is written.
void Preview(QWidget* parent, const clsReportRoute& route);
// Sends the route's pages to a printer chosen in the print dialog.
void Print(QWidget* parent, const clsReportRoute& route);
// Opens the picture the route names, or tells the user how to make it.
void ShowPicture(const clsReportRoute& route);

} // namespace ReportDialogs

namespace ReportIcons {
// The pictures of the report screens, drawn as vector images: "rtf", "csv", "labels", "filter",
// "folder", and a picture for each section key ("section1" ... "section18").
QIcon Icon(const QString& name);
QIcon SectionIcon(int sectionKey);
} // namespace ReportIcons
