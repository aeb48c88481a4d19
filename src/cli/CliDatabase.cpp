// Commands that work on the database and on typed names and addresses.
#include "cli/CliCommand.h"

#include "core/clsApp.h"
#include "core/clsDB.h"
#include "core/modGeneral.h"
#include "core/modSubMain.h"
#include "core/modUserQuery.h"
#include "guests/clsParseAddress.h"
#include "guests/clsParseName.h"

#include <QJsonDocument>

namespace {

int RunInit(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (!args.isEmpty()) {
        err << "vowren-cli: init takes no arguments (got \"" << args.first() << "\")\n";
        return kExitUsage;
    }
    if (!StartForChange(err))
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
    // The user's query reads the file as it stands: no patch, no write, no lock.
    try {
        modUserQuery::Run(
            gApp().DatabasePath(), args.first(), modUserQuery::Limits(),
            [&out](const QStringList& columns) { out << CsvLine(columns) << "\r\n"; },
            [&out](QStringList& row) { out << CsvLine(row) << "\r\n"; });
    } catch (const clsDbError& e) {
        out.flush();
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

bool Say(const QString& message, QTextStream& err) {
    err << "vowren-cli: " << message << '\n';
    return false;
}

} // namespace

bool StartForChange(QTextStream& err) {
    QString message;
    return modSubMain::StartForChange(&message) || Say(message, err);
}

bool StartForReading(QTextStream& err) {
    QString message;
    return modSubMain::StartForReading(&message) || Say(message, err);
}

CliCommand InitCommand() {
    return {QStringLiteral("init"), QStringLiteral("init"),
            QStringLiteral("Create the database under the data root, or bring an older one up to date."), RunInit};
}

CliCommand SqlCommand() {
    return {QStringLiteral("sql"), QStringLiteral("sql \"SELECT ...\""),
            QStringLiteral("Run one reading statement and print the rows as CSV (dates as stored, ISO); it stops "
                           "after 30 s or a million rows."),
            RunSql};
}

CliCommand ParseNameCommand() {
    return {QStringLiteral("parse-name"), QStringLiteral("parse-name [--no-title] \"NAME\""),
            QStringLiteral("Split a full name into its parts (JSON)."), RunParseName};
}

CliCommand ParseAddressCommand() {
    return {QStringLiteral("parse-address"), QStringLiteral("parse-address \"ADDRESS\""),
            QStringLiteral("Split an address into its parts (JSON)."), RunParseAddress};
}
