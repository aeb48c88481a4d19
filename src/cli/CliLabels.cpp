// A sheet of address labels from a script: the section's addresses in order from a chosen label on.
#include "cli/CliCommand.h"

#include "reports/clsLabelSheet.h"
#include "reports/clsRTFLabel.h"
#include "reports/clsReportCatalogue.h"
#include "reports/modLabels.h"
#include "reports/modReportRunner.h"

#include <optional>

namespace {

using C = clsReportCatalogue;

const char kUsage[] =
    "usage: labels SECTION [--filter KEY] [--sheet 8160|L7160] [--start N] [--format rtf|pdf]";

struct LabelArgs {
    QString Section;
    std::optional<int> FilterKey;
    int Sheet = clsLabelSheet::Avery8160;
    int Start = 1;
    bool Pdf = false;
};

// Reads the arguments; an empty text means they were good, else it says what was wrong.
QString ParseArgs(const QStringList& args, LabelArgs& parsed) {
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        if (arg == QLatin1String("--filter")) {
            bool ok = false;
            const auto key = OptionValue(args, i);
            parsed.FilterKey = key ? key->toInt(&ok) : 0;
            if (!ok)
                return QStringLiteral("--filter takes the number of a filter row (see report --list)");
        } else if (arg == QLatin1String("--sheet")) {
            const auto sheet = OptionValue(args, i);
            parsed.Sheet = sheet ? clsLabelSheet::KindOf(*sheet) : -1;
            if (parsed.Sheet < 0)
                return QStringLiteral("--sheet takes 8160 (Letter) or L7160 (A4)");
        } else if (arg == QLatin1String("--start")) {
            bool ok = false;
            const auto start = OptionValue(args, i);
            parsed.Start = start ? start->toInt(&ok) : 0;
            if (!ok || parsed.Start < 1 || parsed.Start > 10000)
                return QStringLiteral("--start takes the number of the first label to fill, from 1");
        } else if (arg == QLatin1String("--format")) {
            const auto format = OptionValue(args, i);
            if (!format || (*format != QLatin1String("rtf") && *format != QLatin1String("pdf")))
                return QStringLiteral("--format takes rtf or pdf");
            parsed.Pdf = *format == QLatin1String("pdf");
        } else if (arg.startsWith(QLatin1String("--")) || !parsed.Section.isEmpty()) {
            return QStringLiteral("unknown argument \"") + arg + QLatin1Char('"');
        } else {
            parsed.Section = arg;
        }
    }
    return parsed.Section.isEmpty() ? QStringLiteral("give a SECTION") : QString();
}

// The route of the row with the key, or of the section's first row that prints labels.
std::optional<clsReportRoute> LabelRoute(int section, std::optional<int> key, QTextStream& err) {
    const QList<C::FilterRow> rows = C::FilterRows(section);
    for (qsizetype i = 0; i < rows.size(); ++i) {
        if (key && rows[i].Key != *key)
            continue;
        if (C::LabelsAllowed(section, rows, int(i), false))
            return C::LabelRoute(section, rows, int(i), false);
        if (key)
            break;
    }
    if (key)
        err << "vowren-cli: labels: that section has no such filter row for labels; report --list shows "
               "them\n";
    else
        err << "vowren-cli: labels: that section has no list to print labels of\n";
    return std::nullopt;
}

int WriteLabels(const LabelArgs& args, int section, QTextStream& out, QTextStream& err) {
    const std::optional<clsReportRoute> route = LabelRoute(section, args.FilterKey, err);
    if (!route)
        return args.FilterKey ? kExitUsage : kExitFailed;
    // A name without an address would waste a label: such rows are left out, and counted.
    QStringList texts;
    int unaddressed = 0;
    for (const modLabels::Address& address :
         modLabels::Addresses(section, route->FilterEnum, route->CustomWhere)) {
        if (address.HasAddress)
            texts << address.Text;
        else
            ++unaddressed;
    }
    if (unaddressed > 0)
        err << "vowren-cli: labels: " << unaddressed << " without an address left out\n";
    if (texts.isEmpty()) {
        err << "vowren-cli: labels: there are no addresses to print\n";
        return kExitFailed;
    }
    clsRTFLabel labels;
    labels.Sheet = args.Sheet;
    labels.Pdf = args.Pdf;
    labels.Labels = modLabels::PlaceFrom(args.Start, texts);
    const QString file = labels.Build();
    if (file.isEmpty())
        return kExitFailed;
    out << file << '\n';
    return kExitOk;
}

int RunLabels(const QStringList& args, QTextStream& out, QTextStream& err) {
    LabelArgs parsed;
    if (const QString problem = ParseArgs(args, parsed); !problem.isEmpty()) {
        err << "vowren-cli: labels: " << problem << "; " << kUsage << '\n';
        return kExitUsage;
    }
    const int section = modReportRunner::SectionKeyOf(parsed.Section);
    if (!modLabels::SectionAllowsLabels(section)) {
        err << "vowren-cli: labels: \"" << parsed.Section
            << "\" prints no labels; give Contacts, Invitations, Attendees, Gifts, Vendors or Widgets\n";
        return kExitUsage;
    }
    if (!StartForReading(err))
        return kExitFailed;
    return Guarded(QStringLiteral("labels"), err, [&] { return WriteLabels(parsed, section, out, err); });
}

} // namespace

CliCommand LabelsCommand() {
    return {
        QStringLiteral("labels"),
        QStringLiteral("labels SECTION [--filter KEY] [--sheet 8160|L7160] [--start N] [--format rtf|pdf]"),
        QStringLiteral("Write a sheet of address labels (Avery 8160 on Letter by default, L7160 on A4) with "
                       "the section's addresses in order from label N, and print its path."),
        RunLabels};
}
