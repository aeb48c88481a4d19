// The label program from a script: name it, see whether it is set up, hand it a list.
#include "cli/CliCommand.h"

#include "platform/clsLabelDesk.h"
#include "reports/clsReportCatalogue.h"
#include "reports/modReportRunner.h"

namespace {

const QString kUsage = QStringLiteral(
    "label-program [--folder DIR] [--exe NAME] | label-program --clear | label-program --start SECTION [--filter KEY]");

struct Args {
    std::optional<QString> Folder;
    std::optional<QString> Exe;
    bool Clear = false;
    QString Section;
    std::optional<int> FilterKey;
};

QString Parse(const QStringList& args, Args& parsed) {
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        if (arg == QLatin1String("--clear")) {
            parsed.Clear = true;
            continue;
        }
        const std::optional<QString> value = OptionValue(args, i);
        if (!value)
            return QStringLiteral("unknown argument or missing value: \"") + arg + QLatin1Char('"');
        if (arg == QLatin1String("--folder")) {
            parsed.Folder = value;
        } else if (arg == QLatin1String("--exe")) {
            parsed.Exe = value;
        } else if (arg == QLatin1String("--start")) {
            parsed.Section = *value;
        } else if (arg == QLatin1String("--filter")) {
            bool ok = false;
            parsed.FilterKey = value->toInt(&ok);
            if (!ok)
                return QStringLiteral("--filter takes the number of a filter row (see report --list)");
        } else {
            return QStringLiteral("unknown argument \"") + arg + QLatin1Char('"');
        }
    }
    const bool setting = parsed.Folder || parsed.Exe;
    if (int(setting) + int(parsed.Clear) + int(!parsed.Section.isEmpty()) > 1)
        return QStringLiteral("give one of --folder/--exe, --clear or --start");
    if (parsed.FilterKey && parsed.Section.isEmpty())
        return QStringLiteral("--filter goes with --start");
    return {};
}

void PrintState(QTextStream& out) {
    const clsLabelDesk labelDesk;
    out << "folder: " << labelDesk.AppPath() << '\n'
        << "program: " << labelDesk.ExeName() << '\n'
        << "active: " << (labelDesk.IsActive() ? "yes" : "no") << '\n';
}

// The label route of the section's row, as the report screen takes it with the label program set up.
int Start(const Args& args, QTextStream& out, QTextStream& err) {
    const int section = modReportRunner::SectionKeyOf(args.Section);
    if (section == 0) {
        err << "vowren-cli: label-program: there is no section \"" << args.Section << "\"; report --list shows them\n";
        return kExitUsage;
    }
    if (!StartForReading(err))
        return kExitFailed;
    const QList<clsReportCatalogue::FilterRow> rows = clsReportCatalogue::FilterRows(section);
    const int row = args.FilterKey ? clsReportCatalogue::FilterRowIndex(rows, *args.FilterKey) : 0;
    if (row < 0 || !clsReportCatalogue::LabelsAllowed(section, rows, row, true)) {
        err << "vowren-cli: label-program: that list can't be printed as labels\n";
        return kExitUsage;
    }
    const clsReportRoute route = clsReportCatalogue::LabelRoute(section, rows, row, true);
    clsLabelDesk labelDesk;
    const int id = route.Argument.toInt();
    if (!labelDesk.Show(route.FormNumber, route.FilterEnum, id)) {
        err << "vowren-cli: label-program: " << labelDesk.Message() << '\n';
        return kExitFailed;
    }
    out << labelDesk.CommandLine(route.FormNumber, route.FilterEnum, id) << '\n';
    return kExitOk;
}

int Run(const QStringList& args, QTextStream& out, QTextStream& err) {
    Args parsed;
    if (const QString problem = Parse(args, parsed); !problem.isEmpty()) {
        err << "vowren-cli: label-program: " << problem << "; usage: " << kUsage << '\n';
        return kExitUsage;
    }
    if (!parsed.Section.isEmpty())
        return Start(parsed, out, err);
    clsLabelDesk labelDesk;
    if (parsed.Clear) {
        labelDesk.SetAppPath(QString());
        labelDesk.SetExeName(QString());
    }
    if (parsed.Folder)
        labelDesk.SetAppPath(*parsed.Folder);
    if (parsed.Exe)
        labelDesk.SetExeName(*parsed.Exe);
    PrintState(out);
    return kExitOk;
}

} // namespace

CliCommand LabelProgramCommand() {
    return {QStringLiteral("label-program"), kUsage,
            QStringLiteral("names the external label program (folder and executable), shows whether it is set "
                           "up, or hands it a section's list the way the report screen does"),
            Run};
}
