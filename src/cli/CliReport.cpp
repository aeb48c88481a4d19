#include "cli/CliCommand.h"

#include "reports/clsCustomFilter.h"
#include "reports/clsRTFCalendar.h"
#include "reports/clsReportCatalogue.h"
#include "reports/clsReportClasses.h"
#include "reports/clsSQLCatalogue.h"
#include "reports/modReportRegistry.h"
#include "reports/modReportRunner.h"

#include <optional>

namespace {

const char kUsage[] = "usage: report SECTION [--filter KEY | --custom \"Caption+Caption\"] [--format rtf|csv|pdf|all] "
                      "[--portrait] [--a4] [--months YYYY-MM:YYYY-MM] | report Custom --sql \"SELECT ...\" "
                      "[--title T] | report Custom --query NAME | report --list | report --all [--format rtf|csv|pdf|both|all]";

struct ReportArgs {
    QString Section;
    std::optional<int> FilterKey;
    QString Custom;
    bool List = false;
    bool All = false;
    bool Rtf = true;
    bool Csv = false;
    bool Pdf = false;
    bool FormatGiven = false;
    // The calendar's months; those kept by the month dialog when empty.
    QString Months;
    // A custom report: the query given, or the name of one of the catalogue; the title instead of its name.
    QString Sql;
    QString Query;
    QString Title;
    modReportRunner::Output Output;
};

// Reads the arguments; an empty text means they were good, else it says what was wrong.
QString ParseArgs(const QStringList& args, ReportArgs& parsed)
{
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        const auto value = [&]() -> std::optional<QString> {
            if (i + 1 >= args.size())
                return std::nullopt;
            return args.at(++i);
        };
        if (arg == QLatin1String("--list")) {
            parsed.List = true;
        } else if (arg == QLatin1String("--all")) {
            parsed.All = true;
        } else if (arg == QLatin1String("--portrait")) {
            parsed.Output.Landscape = false;
        } else if (arg == QLatin1String("--a4")) {
            parsed.Output.A4 = true;
        } else if (arg == QLatin1String("--format")) {
            const auto format = value();
            static const QStringList formats = {QStringLiteral("rtf"), QStringLiteral("csv"), QStringLiteral("pdf"),
                                                QStringLiteral("both"), QStringLiteral("all")};
            if (!format || !formats.contains(*format))
                return QStringLiteral("--format takes rtf, csv, pdf, both (RTF and CSV) or all");
            const bool all = *format == QLatin1String("all");
            parsed.FormatGiven = true;
            parsed.Rtf = all || *format == QLatin1String("rtf") || *format == QLatin1String("both");
            parsed.Csv = all || *format == QLatin1String("csv") || *format == QLatin1String("both");
            parsed.Pdf = all || *format == QLatin1String("pdf");
        } else if (arg == QLatin1String("--filter")) {
            const auto key = value();
            bool ok = false;
            const int number = key ? key->toInt(&ok) : 0;
            if (!ok)
                return QStringLiteral("--filter takes the number of a filter row (see report --list)");
            parsed.FilterKey = number;
        } else if (arg == QLatin1String("--months")) {
            const auto months = value();
            if (!months || !clsCalendarMonths().SetRange(*months))
                return QStringLiteral("--months takes the calendar's first and last month, such as 2027-01:2027-06");
            parsed.Months = *months;
        } else if (arg == QLatin1String("--custom")) {
            const auto captions = value();
            if (!captions || captions->trimmed().isEmpty())
                return QStringLiteral("--custom takes box captions joined by \"+\", such as \"Friend of Bride+A list\"");
            parsed.Custom = *captions;
        } else if (QStringList{"--sql", "--query", "--title"}.contains(arg)) {
            const auto text = value();
            if (!text || text->trimmed().isEmpty())
                return arg + QStringLiteral(" takes a text in quotes");
            QString& field = arg == QLatin1String("--sql")     ? parsed.Sql
                             : arg == QLatin1String("--query") ? parsed.Query
                                                               : parsed.Title;
            field = *text;
        } else if (arg.startsWith(QLatin1String("--")) || !parsed.Section.isEmpty()) {
            return QStringLiteral("unknown argument \"") + arg + QLatin1Char('"');
        } else {
            parsed.Section = arg;
        }
    }
    const int modes = int(parsed.List) + int(parsed.All) + int(!parsed.Section.isEmpty());
    if (modes != 1)
        return QStringLiteral("give one of SECTION, --list or --all");
    if (parsed.FilterKey && !parsed.Custom.isEmpty())
        return QStringLiteral("--filter and --custom exclude each other");
    return {};
}

// The route of the section's row with the key, or of its first row that runs a report by itself.
std::optional<clsReportRoute> RowRoute(int section, std::optional<int> key, QTextStream& err)
{
    const QList<clsReportCatalogue::FilterRow> rows = clsReportCatalogue::FilterRows(section);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (key && rows[i].Key != *key)
            continue;
        const clsReportRoute route = clsReportCatalogue::Route(section, rows, static_cast<int>(i));
        if (!key && (route.ClassName.isEmpty() || !route.Dialog.isEmpty()))
            continue;
        if (route.Dialog == QLatin1String("frmReportsCustomFilter")) {
            err << "vowren-cli: report: the custom filter takes its boxes from --custom\n";
            return std::nullopt;
        }
        // The calendar's months come from --months, or as the month dialog kept them; a report that is
        // not built yet is said to be so, whatever screen it would need.
        if (route.Dialog == QLatin1String("frmReportEventDates") ||
            (!route.ClassName.isEmpty() && !clsReportClasses::Exists(route.ClassName)))
            return route;
        if (!route.Dialog.isEmpty() || route.ClassName.isEmpty()) {
            err << "vowren-cli: report: \"" << rows[i].FILTER << "\" needs the report screen of the desktop program\n";
            return std::nullopt;
        }
        return route;
    }
    err << "vowren-cli: report: that section has no such filter row; report --list shows them\n";
    return std::nullopt;
}

// The custom report of the query given with --sql, or of the catalogue's query named by --query.
std::optional<clsReportRoute> CustomSqlRoute(const ReportArgs& args, QTextStream& err)
{
    if (args.Sql.isEmpty() == args.Query.isEmpty()) {
        err << "vowren-cli: report: Custom takes one of --sql \"SELECT ...\" or --query NAME "
               "(custom-reports lists the names)\n";
        return std::nullopt;
    }
    if (!args.Sql.isEmpty())
        return modReportRunner::CustomRoute(args.Sql,
                                            args.Title.isEmpty() ? QStringLiteral("Custom SQL") : args.Title);
    const clsSQLCatalogue catalogue = clsSQLCatalogue::Current();
    const clsSQL_XML* item = catalogue.Find(args.Query);
    if (!item) {
        err << "vowren-cli: report: the catalogue has no query \"" << args.Query
            << "\"; custom-reports lists them\n";
        return std::nullopt;
    }
    const QString title = args.Title.isEmpty() ? item->SQL_NAME : args.Title;
    return modReportRunner::CustomRoute(item->SQL, title, item->SQL_DESC);
}

// The custom filter's route with the boxes of those captions ticked.
std::optional<clsReportRoute> CustomRoute(int section, const QString& captions, QTextStream& err)
{
    clsCustomFilter filter(section);
    if (!filter.IsValid()) {
        err << "vowren-cli: report: only Contacts, Invitations, RSVPs and Attendees have a custom filter\n";
        return std::nullopt;
    }
    for (const QString& caption : captions.split(QLatin1Char('+'))) {
        bool found = false;
        for (const clsCustomFilter::Group& group : filter.Groups()) {
            for (const clsCustomFilter::Box& box : group.Boxes) {
                if (box.Caption.compare(caption.trimmed(), Qt::CaseInsensitive) == 0) {
                    filter.SetTicked(box.Key, true);
                    found = true;
                }
            }
        }
        if (!found) {
            err << "vowren-cli: report: the custom filter of " << filter.HeaderCaption() << " has no box \""
                << caption.trimmed() << "\"\n";
            return std::nullopt;
        }
    }
    return filter.Route();
}

QList<modReportRunner::Output> Outputs(const ReportArgs& args)
{
    QList<modReportRunner::Output> outputs;
    const auto add = [&](bool wanted, bool rtf, bool pdf) {
        if (!wanted)
            return;
        modReportRunner::Output output = args.Output;
        output.UseRtf = rtf;
        output.UsePdf = pdf;
        outputs.append(output);
    };
    add(args.Rtf, true, false);
    add(args.Csv, false, false);
    add(args.Pdf, true, true);
    return outputs;
}

int WriteOne(const ReportArgs& args, QTextStream& out, QTextStream& err)
{
    const int section = modReportRunner::SectionKeyOf(args.Section);
    if (section == 0) {
        err << "vowren-cli: report: there is no section \"" << args.Section << "\"; report --list shows them\n";
        return kExitUsage;
    }
    const bool customSql = section == clsReportCatalogue::Custom;
    if (!customSql && !QString(args.Sql + args.Query + args.Title).isEmpty()) {
        err << "vowren-cli: report: only the Custom section takes --sql, --query and --title\n";
        return kExitUsage;
    }
    std::optional<clsReportRoute> route = customSql               ? CustomSqlRoute(args, err)
                                          : args.Custom.isEmpty() ? RowRoute(section, args.FilterKey, err)
                                                                  : CustomRoute(section, args.Custom, err);
    if (!route)
        return kExitUsage;
    route->Argument = route->Dialog.isEmpty() ? route->Argument : args.Months;
    if (!clsReportClasses::Exists(route->ClassName)) {
        err << "vowren-cli: report: this report is not available yet\n";
        return kExitFailed;
    }
    int status = kExitOk;
    for (const modReportRunner::Output& output : Outputs(args)) {
        const QString file = modReportRunner::Write(*route, output);
        if (file.isEmpty())
            status = kExitFailed;
        else
            out << file << '\n';
    }
    return status;
}

int RunReport(const QStringList& args, QTextStream& out, QTextStream& err)
{
    ReportArgs parsed;
    if (const QString problem = ParseArgs(args, parsed); !problem.isEmpty()) {
        err << "vowren-cli: report: " << problem << "; " << kUsage << '\n';
        return kExitUsage;
    }
    if (parsed.All && !parsed.FormatGiven)
        parsed.Csv = true; // --all writes both dialects unless one is named
    if (!StartForReading(err))
        return kExitFailed;
    RegisterReportClasses();
    if (parsed.List) {
        for (const QString& line : clsReportCatalogue::CatalogueLines())
            out << line << '\n';
        return kExitOk;
    }
    if (parsed.All) {
        int failed = 0;
        modReportRunner::WriteAll(Outputs(parsed), &failed, [&out](const QString& file) {
            out << file << '\n';
            out.flush();
        });
        if (failed > 0)
            err << "vowren-cli: report: " << failed << " report(s) could not be written\n";
        return failed > 0 ? kExitFailed : kExitOk;
    }
    return WriteOne(parsed, out, err);
}

} // namespace

CliCommand ReportCommand()
{
    return {QStringLiteral("report"),
            QStringLiteral("report SECTION [--filter KEY | --custom CAPTIONS] [--format rtf|csv|pdf|all] [--portrait] [--a4] "
                           "[--months YYYY-MM:YYYY-MM]"),
            QStringLiteral("Write a report into the report folder and print its path (never opens it). "
                           "--list prints the catalogue with counts; --all writes every available report and "
                           "a custom report of each query that comes with the program (RTF and CSV unless "
                           "--format names pdf, both or all). Custom runs --sql, a query of its own that only "
                           "reads, or --query, one of custom-reports."),
            RunReport};
}
