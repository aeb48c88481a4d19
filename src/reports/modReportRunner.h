#pragma once

#include "reports/clsReportRoute.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

// Running reports without the report screen: the command line and the headless job use it, and the
// screen's choices reach the reports the same way.
namespace modReportRunner {

// The dialect and paper a run writes with; the font and colours stay as the settings have them.
struct Output {
    bool UseRtf = true;
    bool UsePdf = false; // with UseRtf: the document as PDF
    bool Landscape = true;
    bool A4 = false;
};

// Hands the output to the settings every report reads.
void ApplyOutput(const Output& output);

// One route for each report class that can be built now without a dialog: the first filter row of
// the catalogue that leads to it. In the catalogue's order.
QList<clsReportRoute> AvailableRoutes();

// The route that writes a custom report of the query, with its name and description as title and the
// line under it.
clsReportRoute CustomRoute(const QString& sql, const QString& name = QString(),
                           const QString& description = QString());
// One custom report route for each query of the catalogue that comes with the program.
QList<clsReportRoute> ShippedCustomRoutes();

// The section with that key ("14") or caption ("Wedding Statistics", any case); 0 when none.
int SectionKeyOf(const QString& text);

// Writes the report of the route with that output and leaves the settings as they were. The full
// name of the file, or empty when the file could not be written (the user has been told why). Throws
// clsDbError when the database refuses the reading.
QString Write(const clsReportRoute& route, const Output& output);

// Writes every available report in each of the given dialects, and a custom report of each query of the
// catalogue that comes with the program. `progress` hears of each file as it
// is done (may be empty). The files written, in order; files that could not be written are counted in
// *failed. Throws clsDbError when the database refuses a reading.
QStringList WriteAll(const QList<Output>& outputs, int* failed = nullptr,
                     const std::function<void(const QString& file)>& progress = {});

} // namespace modReportRunner
