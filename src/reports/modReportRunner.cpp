#include "reports/modReportRunner.h"

#include "reports/clsRTFMasterTemp.h"
#include "reports/clsReportCatalogue.h"
#include "reports/clsReportClasses.h"
#include "reports/clsSQLCatalogue.h"

#include <QSet>

namespace modReportRunner {

void ApplyOutput(const Output& output)
{
    clsRTFMasterTemp& settings = gRTFMasterTemp();
    settings.USE_RTF = output.UseRtf;
    settings.USE_PDF = output.UsePdf;
    settings.LANDSCAPE = output.Landscape;
    settings.A4 = output.A4;
}

QList<clsReportRoute> AvailableRoutes()
{
    QList<clsReportRoute> routes;
    QSet<QString> seen;
    for (const clsReportCatalogue::Section& section : clsReportCatalogue::Sections()) {
        const QList<clsReportCatalogue::FilterRow> rows = clsReportCatalogue::FilterRows(section.Key);
        for (qsizetype i = 0; i < rows.size(); ++i) {
            const clsReportRoute route = clsReportCatalogue::Route(section.Key, rows, static_cast<int>(i));
            if (route.ClassName.isEmpty() || !route.Dialog.isEmpty() || seen.contains(route.ClassName) ||
                !clsReportClasses::Exists(route.ClassName))
                continue;
            seen.insert(route.ClassName);
            routes.append(route);
        }
    }
    return routes;
}

clsReportRoute CustomRoute(const QString& sql, const QString& name, const QString& description)
{
    const QList<clsReportCatalogue::FilterRow> rows = clsReportCatalogue::FilterRows(clsReportCatalogue::Custom);
    clsReportRoute route = clsReportCatalogue::Route(clsReportCatalogue::Custom, rows, 0);
    route.Dialog.clear(); // the query is given: nothing to ask
    route.SQL = sql;
    route.SQL_NAME = name;
    route.SQL_DESC = description;
    return route;
}

QList<clsReportRoute> ShippedCustomRoutes()
{
    QList<clsReportRoute> routes;
    for (const clsSQL_XML& item : clsSQLCatalogue::Shipped().Items)
        routes.append(CustomRoute(item.SQL, item.SQL_NAME, item.SQL_DESC));
    return routes;
}

int SectionKeyOf(const QString& text)
{
    const QString wanted = text.trimmed();
    bool isNumber = false;
    const int number = wanted.toInt(&isNumber);
    for (const clsReportCatalogue::Section& section : clsReportCatalogue::Sections()) {
        if (isNumber ? section.Key == number : section.Caption.compare(wanted, Qt::CaseInsensitive) == 0)
            return section.Key;
    }
    return 0;
}

QString Write(const clsReportRoute& route, const Output& output)
{
    clsRTFMasterTemp& settings = gRTFMasterTemp();
    // The settings go back as they were, also when the database refuses the reading.
    struct Restore {
        Output Before;
        ~Restore() { ApplyOutput(Before); }
    } restore{{settings.USE_RTF, settings.USE_PDF, settings.LANDSCAPE, settings.A4}};
    ApplyOutput(output);
    return clsReportClasses::Build(route);
}

QStringList WriteAll(const QList<Output>& outputs, int* failed,
                     const std::function<void(const QString& file)>& progress)
{
    QStringList written;
    int failures = 0;
    QList<clsReportRoute> routes = AvailableRoutes();
    if (clsReportClasses::Exists(QStringLiteral("clsRTFSQL")))
        routes += ShippedCustomRoutes();
    for (const Output& output : outputs) {
        for (const clsReportRoute& route : routes) {
            const QString file = Write(route, output);
            if (file.isEmpty()) {
                ++failures;
                continue;
            }
            written.append(file);
            if (progress)
                progress(file);
        }
    }
    if (failed)
        *failed = failures;
    return written;
}

} // namespace modReportRunner
