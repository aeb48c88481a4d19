#pragma once

#include "reports/clsReportRoute.h"

#include <QString>
#include <QStringList>
#include <functional>

// The report classes that can be run, by name. The catalogue offers every report, and marks those whose
// class is not registered here as not yet available; a runner (the report screen, the command line)
// builds a report through the routine registered for its class.
class clsReportClasses {
public:
    // Builds the report the route describes and gives back the full name of the file written, or an
    // empty text when the file could not be written (the user has been told why). Throws clsDbError when
    // the database refuses the reading.
    using Builder = std::function<QString(const clsReportRoute&)>;

    // A second registration of the same name replaces the first.
    static void Register(const QString& className, Builder builder);
    static void Unregister(const QString& className);
    static bool Exists(const QString& className);
    static QStringList Names();
    // The file written, or empty when the class is not registered or wrote nothing.
    static QString Build(const clsReportRoute& route);
};
