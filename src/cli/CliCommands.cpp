#include "cli/CliCommand.h"

#include "core/clsApp.h"
#include "platform/VowrenPaths.h"

namespace {

int RunInfo(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (!args.isEmpty()) {
        err << "vowren-cli: info takes no arguments (got \"" << args.first() << "\")\n";
        return kExitUsage;
    }
    const clsApp& app = gApp();
    out << "Vowren " << clsApp::MajorMinorRevision() << '\n'
        << "Data root:     " << VowrenPaths::DataRoot() << '\n'
        << "Settings file: " << VowrenPaths::SettingsFilePath() << '\n'
        << "Database:      " << app.DatabasePath() << '\n'
        << "Reports:       " << app.ReportPath() << '\n'
        << "Playlists:     " << app.PlaylistPath() << '\n';
    return kExitOk;
}

} // namespace

std::optional<QString> OptionValue(const QStringList& args, qsizetype& i) {
    if (i + 1 >= args.size())
        return std::nullopt;
    return args.at(++i);
}

const std::vector<CliCommand>& CliCommands() {
    static const std::vector<CliCommand> commands = {
        {QStringLiteral("info"), QStringLiteral("info"),
         QStringLiteral("Print the version, the data root, the settings file and the resolved paths."),
         RunInfo},
        InitCommand(),
        SqlCommand(),
        ParseNameCommand(),
        ParseAddressCommand(),
        DemoCommand(),
        ReportCommand(),
        CustomReportsCommand(),
        LabelsCommand(),
        BackupCommand(),
        RestoreCommand(),
        DeleteCommand(),
        RelabelCommand(),
        SeatCommand(),
        UnseatCommand(),
        TablesCommand(),
        TentcardsCommand(),
        ImportCommand(),
        ChecklistCommand(),
        HouseCommand(),
        BoardCommand(),
        TravelCommand(),
        WeddingCommand(),
        IcsCommand(),
        BudgetCommand(),
        ThankYouCommand(),
        WordingCommand(),
        PlaylistCommand(),
        LabelProgramCommand(),
    };
    return commands;
}
