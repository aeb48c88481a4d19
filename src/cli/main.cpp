// vowren-cli: the main jobs of the planner without a screen.
#include "cli/CliCommand.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "startup/modStartup.h"

#include <QCoreApplication>
#include <QTextStream>
#include <cstdio>

namespace {

void PrintHelp(QTextStream& out) {
    out << "Usage: vowren-cli COMMAND [ARGUMENTS]\n"
        << "       vowren-cli --version | --help\n\n"
        << "Commands:\n";
    for (const CliCommand& command : CliCommands())
        out << "  " << command.Usage.leftJustified(40) << ' ' << command.Help << '\n';
    out << "\nThe data root is $VOWREN_HOME when set, else the per-user data folder.\n";
}

// The edge of every command: a failure the database reports ends the command with its words on
// standard error and the status of a refused operation.
int RunCommand(const CliCommand& command, const QStringList& args, QTextStream& out, QTextStream& err) {
    try {
        return command.Run(args, out, err);
    } catch (const clsDbError& e) {
        out.flush();
        err << "vowren-cli: " << command.Name << ": " << TranslateEngineMessage(e.Message()) << '\n';
        return kExitFailed;
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vowren-cli"));
    QCoreApplication::setApplicationVersion(clsApp::MajorMinorRevision());
    QTextStream out(stdout);
    QTextStream err(stderr);
    SetMessageSink(std::make_unique<clsConsoleMessageSink>());
    modStartup::RegisterSubsystems();

    QStringList args = QCoreApplication::arguments().mid(1);
    if (args.isEmpty()) {
        err << "vowren-cli: no command given; try \"vowren-cli --help\"\n";
        return kExitUsage;
    }
    const QString first = args.takeFirst();
    if (first == QLatin1String("--version") || first == QLatin1String("-v")) {
        out << "vowren-cli " << clsApp::MajorMinorRevision() << '\n';
        return kExitOk;
    }
    if (first == QLatin1String("--help") || first == QLatin1String("-h") || first == QLatin1String("help")) {
        PrintHelp(out);
        return kExitOk;
    }
    for (const CliCommand& command : CliCommands()) {
        if (command.Name == first) {
            const int status = RunCommand(command, args, out, err);
            out.flush();
            err.flush();
            return status;
        }
    }
    err << "vowren-cli: unknown command \"" << first << "\"; try \"vowren-cli --help\"\n";
    return kExitUsage;
}
