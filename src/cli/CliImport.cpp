// Importing contacts from a CSV or vCard file, all or nothing.
#include "cli/CliCommand.h"

#include "core/ShowMessage.h"
#include "core/clsDB.h"
#include "guests/clsContactImport.h"

namespace {

const QString kUsage =
    QStringLiteral("import FILE [--delimiter ','|';'|'\\t'] [--duplicates allow|replace] [--five-digit-zip] "
                   "[--map \"File column=FIELD_NM\"]... [--dry-run]");

struct ImportArgs {
    QString File;
    QChar Delimiter; // null: guessed from the first line
    clsImportOptions Options{true, false};
    QList<QPair<QString, QString>> Maps; // column, field
    bool DryRun = false;
};

QChar DelimiterOf(const QString& text) {
    if (text == QLatin1String(",") || text == QLatin1String(";") || text == QLatin1String("\t"))
        return text.at(0);
    if (text == QLatin1String("\\t") || text.compare(QLatin1String("tab"), Qt::CaseInsensitive) == 0)
        return QLatin1Char('\t');
    return {};
}

// What is wrong with the arguments, or "" when they are good.
QString ParseArgs(const QStringList& args, ImportArgs& parsed) {
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        const auto value = [&] { return OptionValue(args, i); };
        if (arg == QLatin1String("--five-digit-zip")) {
            parsed.Options.FiveDigitZip = true;
        } else if (arg == QLatin1String("--dry-run")) {
            parsed.DryRun = true;
        } else if (arg == QLatin1String("--delimiter")) {
            parsed.Delimiter = DelimiterOf(value().value_or(QString()));
            if (parsed.Delimiter.isNull())
                return QStringLiteral("--delimiter takes ',', ';' or '\\t'");
        } else if (arg == QLatin1String("--duplicates")) {
            const QString option = value().value_or(QString());
            if (option != QLatin1String("allow") && option != QLatin1String("replace"))
                return QStringLiteral("--duplicates takes allow or replace");
            parsed.Options.ReplaceDuplicates = option == QLatin1String("replace");
        } else if (arg == QLatin1String("--map")) {
            const QString map = value().value_or(QString());
            const qsizetype equals = map.lastIndexOf(QLatin1Char('='));
            if (equals <= 0 || equals == map.size() - 1)
                return QStringLiteral("--map takes \"File column=FIELD_NM\"");
            parsed.Maps.append({map.left(equals), map.mid(equals + 1).trimmed()});
        } else if (arg.startsWith(QLatin1String("--")) || !parsed.File.isEmpty()) {
            return QStringLiteral("unknown argument \"%1\"").arg(arg);
        } else {
            parsed.File = arg;
        }
    }
    return parsed.File.isEmpty() ? QStringLiteral("the file to import is missing") : QString();
}

// The suggested mapping, or only the columns named by --map when there are any.
QList<clsIMPORT_FIELD> MappingOf(const clsImportTable& table, const ImportArgs& args) {
    QList<clsIMPORT_FIELD> mapping = clsContactImport::SuggestedMapping(table.Headers);
    if (args.Maps.isEmpty())
        return mapping;
    for (clsIMPORT_FIELD& column : mapping)
        column.MAP_IMPORT_FIELD_NM.clear();
    for (const auto& [column, field] : args.Maps)
        clsContactImport::MapColumn(mapping, column, field);
    return mapping;
}

// The preview as CSV under the captions of the fields, as the template has them.
void PrintPreview(const QList<clsImportRow>& rows, QTextStream& out) {
    out << clsContactImport::CaptionsCsvRecord() << '\n';
    for (const clsImportRow& row : rows)
        out << row.CsvRecord() << '\n';
}

int RunImport(const QStringList& argList, QTextStream& out, QTextStream& err) {
    ImportArgs args;
    if (const QString problem = ParseArgs(argList, args); !problem.isEmpty()) {
        err << "vowren-cli: import: " << problem << "; usage: " << kUsage << '\n';
        return kExitUsage;
    }
    if (!(args.DryRun ? StartForReading(err) : StartForChange(err)))
        return kExitFailed;
    try {
        const clsImportTable table = clsContactImport::ReadFile(args.File, args.Delimiter);
        QList<clsImportRow> rows = clsContactImport::Preview(table, MappingOf(table, args));
        clsContactImport::MarkDuplicates(rows);
        if (args.DryRun) {
            PrintPreview(rows, out);
            return kExitOk;
        }
        const clsImportResult result = clsContactImport::Import(rows, args.Options);
        out << "Added " << result.Added << " contacts, replaced " << result.Replaced << ", left out "
            << result.LeftOut << "; made " << result.Invitations << " invitations\n";
        return kExitOk;
    } catch (const clsDbError& e) {
        QString message = TranslateEngineMessage(e.Message());
        if (!message.endsWith(QLatin1Char('.')))
            message += QLatin1Char('.');
        err << "vowren-cli: import: " << message << " Nothing was imported.\n";
        return kExitFailed;
    }
}

} // namespace

CliCommand ImportCommand() {
    return {
        QStringLiteral("import"), kUsage,
        QStringLiteral("Import contacts from a CSV or vCard file with the suggested mapping (or --map), one "
                       "invitation per run of rows with one RSVP ID; all or nothing. --dry-run prints the "
                       "preview as CSV and changes nothing."),
        RunImport};
}
