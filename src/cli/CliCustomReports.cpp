// The catalogue of custom reports: the queries `report Custom --query NAME` runs.
#include "cli/CliCommand.h"

#include "reports/clsSQLCatalogue.h"

namespace {

// One line a query: category, name and description, separated by tabs. What the catalogue left out is
// said on standard error; the queries it holds are listed all the same.
int RunCustomReports(const QStringList& args, QTextStream& out, QTextStream& err) {
    const bool withSql = args == QStringList{QStringLiteral("--sql")};
    if (!args.isEmpty() && !withSql) {
        err << "vowren-cli: custom-reports takes only --sql\n";
        return kExitUsage;
    }
    const clsSQLCatalogue catalogue = clsSQLCatalogue::Current();
    for (const QString& problem : catalogue.Problems)
        err << "vowren-cli: custom-reports: " << problem << '\n';
    for (const clsSQL_XML& item : catalogue.Items) {
        out << item.SQL_CATEGORY << '\t' << item.SQL_NAME << '\t' << item.SQL_DESC;
        if (withSql)
            out << '\t' << item.SQL;
        out << '\n';
    }
    return kExitOk;
}

} // namespace

CliCommand CustomReportsCommand() {
    return {
        QStringLiteral("custom-reports"), QStringLiteral("custom-reports [--sql]"),
        QStringLiteral("List the queries of the custom reports catalogue (the one downloaded last, else the "
                       "program's own): category, name and description separated by tabs, and with --sql the "
                       "statement. report Custom --query NAME writes one."),
        RunCustomReports};
}
