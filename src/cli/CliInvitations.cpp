// Commands that work on the invitations.
#include "cli/CliCommand.h"

#include "core/modSubMain.h"
#include "guests/clsINVITE.h"

namespace {

// relabel [--formal|--personal]: the inner envelope of every invitation written anew, by the etiquette
// kept with the data or by the one given, which is then kept.
int RunRelabel(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args.size() > 1 || (args.size() == 1 && args.first() != QLatin1String("--formal") &&
                            args.first() != QLatin1String("--personal"))) {
        err << "vowren-cli: relabel takes --formal, --personal or nothing (got \"" << args.join(QLatin1Char(' '))
            << "\")\n";
        return kExitUsage;
    }
    QString message;
    if (!modSubMain::Start(&message)) {
        err << "vowren-cli: relabel: " << message << '\n';
        return kExitFailed;
    }
    qsizetype count = 0;
    const auto progress = [&count](qsizetype done, qsizetype) {
        count = done;
        return true;
    };
    try {
        if (args.isEmpty())
            clsINVITE::RelabelAll(progress);
        else
            clsINVITE::ChangeEtiquette(args.first() == QLatin1String("--formal"), progress);
    } catch (const clsDbError& e) {
        err << "vowren-cli: relabel: nothing was changed: " << e.Message() << '\n';
        return kExitFailed;
    }
    out << "Relabelled " << count << (count == 1 ? " invitation (" : " invitations (")
        << (clsINVITE::EtiquetteIsFormal() ? "formal" : "personal") << ")\n";
    return kExitOk;
}

} // namespace

CliCommand RelabelCommand() {
    return {QStringLiteral("relabel"), QStringLiteral("relabel [--formal|--personal]"),
            QStringLiteral("Write the inner envelope of every invitation anew, by the etiquette kept with the "
                           "data, or by the one given, which is then kept; all or nothing."),
            RunRelabel};
}
