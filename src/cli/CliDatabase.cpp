// Commands that work on the database and on typed names and addresses.
#include "cli/CliCommand.h"

#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/modGeneral.h"
#include "core/modSubMain.h"
#include "guests/clsParseAddress.h"
#include "guests/clsParseName.h"

#include <QJsonDocument>

namespace {

bool StartOrSay(QTextStream& err) {
    QString message;
    if (modSubMain::Start(&message))
        return true;
    err << "vowren-cli: " << message << '\n';
    return false;
}

int RunInit(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (!args.isEmpty()) {
        err << "vowren-cli: init takes no arguments (got \"" << args.first() << "\")\n";
        return kExitUsage;
    }
    if (!StartOrSay(err))
        return kExitFailed;
    out << "Database ready: " << gDB().DatabasePath << '\n';
    return kExitOk;
}

QString CsvLine(const QStringList& fields) {
    QStringList quoted;
    for (const QString& field : fields)
        quoted << QuoteCSV(field);
    return quoted.join(QLatin1Char(','));
}

int RunSql(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args.size() != 1 || args.first().trimmed().isEmpty()) {
        err << "vowren-cli: sql takes one statement in quotes, e.g. vowren-cli sql \"SELECT * FROM CONTACT\"\n";
        return kExitUsage;
    }
    if (!StartOrSay(err))
        return kExitFailed;
    QString why;
    if (!gDB().IsReadOnlyStatement(args.first(), &why)) {
        err << "vowren-cli: only a statement that reads can be run here; this one would change the database"
            << (why.isEmpty() ? QString() : QStringLiteral(" (") + why + QLatin1Char(')')) << ". Nothing was run.\n";
        return kExitFailed;
    }
    try {
        const clsRecordset rows = gDB().ExecuteRaw(args.first());
        out << CsvLine(rows.Columns()) << "\r\n";
        for (int i = 0; i < rows.RowCount(); ++i)
            out << CsvLine(rows.Row(i)) << "\r\n";
    } catch (const clsDbError& e) {
        err << "vowren-cli: " << e.Message() << '\n';
        return kExitFailed;
    }
    return kExitOk;
}

int RunParseName(const QStringList& args, QTextStream& out, QTextStream& err) {
    QStringList rest = args;
    const bool parseTitle = !rest.removeAll(QStringLiteral("--no-title"));
    if (rest.size() != 1) {
        err << "vowren-cli: parse-name takes one name in quotes, e.g. vowren-cli parse-name \"Dr. Ann B. Lee\"\n";
        return kExitUsage;
    }
    out << QJsonDocument(clsParseName::ParseToJson(rest.first(), parseTitle)).toJson(QJsonDocument::Compact) << '\n';
    return kExitOk;
}

int RunParseAddress(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args.size() != 1) {
        err << "vowren-cli: parse-address takes one address in quotes, lines separated by line breaks\n";
        return kExitUsage;
    }
    out << QJsonDocument(clsParseAddress::ParseToJson(args.first())).toJson(QJsonDocument::Compact) << '\n';
    return kExitOk;
}

} // namespace

CliCommand InitCommand() {
    return {QStringLiteral("init"), QStringLiteral("init"),
            QStringLiteral("Create the database under the data root, or bring an older one up to date."), RunInit};
}

CliCommand SqlCommand() {
    return {QStringLiteral("sql"), QStringLiteral("sql \"SELECT ...\""),
            QStringLiteral("Run one reading statement and print the rows as CSV (dates as stored, ISO)."), RunSql};
}

CliCommand ParseNameCommand() {
    return {QStringLiteral("parse-name"), QStringLiteral("parse-name [--no-title] \"NAME\""),
            QStringLiteral("Split a full name into its parts (JSON)."), RunParseName};
}

CliCommand ParseAddressCommand() {
    return {QStringLiteral("parse-address"), QStringLiteral("parse-address \"ADDRESS\""),
            QStringLiteral("Split an address into its parts (JSON)."), RunParseAddress};
}
