// vowren-cli: the main jobs of the planner without a screen.
#include "cli/CliCommand.h"
#include "core/ShowMessage.h"
#include "core/clsApp.h"
#include "core/clsDB.h"
#include "pdf/clsPdfDialect.h"
#include "startup/modStartup.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTextStream>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

void PrintHelp(QTextStream& out) {
    out << "Usage: vowren-cli COMMAND [ARGUMENTS]\n"
        << "       vowren-cli --version | --help\n\n"
        << "Commands:\n";
    for (const CliCommand& command : CliCommands())
        out << "  " << command.Usage.leftJustified(40) << ' ' << command.Help << '\n';
    out << "\nThe data root is $VOWREN_HOME when set, else the per-user data folder.\n";
}

// Whether the command writes PDF, which needs fonts and painting: "--format pdf" or "--format all".
bool WritesPdf(int argc, char** argv) {
    for (int i = 1; i + 1 < argc; ++i) {
        if (std::strcmp(argv[i], "--format") == 0 &&
            (std::strcmp(argv[i + 1], "pdf") == 0 || std::strcmp(argv[i + 1], "all") == 0))
            return true;
    }
    return false;
}

// A painting application on the screenless platform when PDF is wanted; else one without Gui.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv) {
    if (!WritesPdf(argc, argv))
        return std::make_unique<QCoreApplication>(argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    auto app = std::make_unique<QGuiApplication>(argc, argv);
    clsPdfDialect::Register();
    return app;
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
    const std::unique_ptr<QCoreApplication> app = MakeApplication(argc, argv);
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
