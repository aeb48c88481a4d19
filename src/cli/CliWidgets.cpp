// The invitation wording and the playlists from a script: the same lines and files as the widgets page.
#include "cli/CliCommand.h"

#include "core/modGeneral.h"
#include "guests/modParseText.h"
#include "startup/modWedding.h"
#include "widgets/clsWORDING.h"
#include "widgets/modPlaylist.h"
#include "widgets/modWording.h"

namespace {

const QString kWordingUsage = QStringLiteral(
    "wording [--template N] [--phrase 0|1] [--place TEXT] [--reception TEXT | --no-reception] [--save]");
const QString kPlaylistUsage = QStringLiteral("playlist SONGLIST|--all [--out FILE]");

int WordingUsage(QTextStream& err, const QString& why) {
    err << "vowren-cli: wording: " << why << "; usage: " << kWordingUsage << '\n';
    return kExitUsage;
}

// A whole number in [low, high]; -1 otherwise.
int Number(const QString& text, int low, int high) {
    bool ok = false;
    const int n = text.toInt(&ok);
    return ok && n >= low && n <= high ? n : -1;
}

// Reads the options over the stored choices; an empty text when they are good, else what is wrong.
QString TakeWordingOptions(const QStringList& args, modWording::Choices& choices, bool& save) {
    if (args.contains(QStringLiteral("--reception")) && args.contains(QStringLiteral("--no-reception")))
        return QStringLiteral("--reception and --no-reception exclude each other");
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& option = args.at(i);
        if (option == QLatin1String("--save")) {
            save = true;
        } else if (option == QLatin1String("--no-reception")) {
            choices.Reception = false;
        } else if (i + 1 >= args.size()) {
            return QStringLiteral("unknown argument or missing value: \"") + option + QLatin1Char('"');
        } else if (option == QLatin1String("--template")) {
            choices.Template = Number(args.at(++i), 0, modWording::kTemplateCount - 1);
            if (choices.Template < 0)
                return QStringLiteral("--template takes 0 to 18");
        } else if (option == QLatin1String("--phrase")) {
            choices.Phrase = Number(args.at(++i), 0, 1);
            if (choices.Phrase < 0)
                return QStringLiteral("--phrase takes 0 or 1");
        } else if (option == QLatin1String("--place")) {
            choices.Place = args.at(++i);
        } else if (option == QLatin1String("--reception")) {
            choices.Reception = true;
            choices.ReceptionPlace = args.at(++i);
        } else {
            return QStringLiteral("unknown argument \"") + option + QLatin1Char('"');
        }
    }
    return {};
}

int RunWording(const QStringList& args, QTextStream& out, QTextStream& err) {
    bool save = false;
    modWording::Choices choices = modWording::Choices::Load();
    const QString wrong = TakeWordingOptions(args, choices, save);
    if (!wrong.isEmpty())
        return WordingUsage(err, wrong);
    if (!(save ? StartForChange(err) : StartForReading(err)))
        return kExitFailed;
    const QDateTime when = ParseDateTimeText(modWedding::WeddingDateTime());
    const QStringList lines = modWording::Lines(choices, modWording::People::Open(choices), when);
    if (save) {
        clsWORDING wording;
        wording.WORDING_ID = QString::number(clsWORDING::InvitationWording);
        wording.WORDING_TX = lines.join(QStringLiteral("\r\n"));
        wording.Save(false);
    }
    // The place and the reception may carry line breaks of their own: every line ends in LF alone.
    out << NormalizeLineBreaks(lines.join(QLatin1Char('\n')))
               .replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        << '\n';
    return kExitOk;
}

int RunPlaylist(const QStringList& args, QTextStream& out, QTextStream& err) {
    const bool hasOut = args.size() == 3 && args.at(1) == QLatin1String("--out");
    const QString list = args.value(0);
    const bool listGiven =
        !list.isEmpty() && (!list.startsWith(QLatin1String("--")) || list == QLatin1String("--all"));
    if (!listGiven || !(args.size() == 1 || hasOut)) {
        err << "vowren-cli: playlist: usage: " << kPlaylistUsage << '\n';
        return kExitUsage;
    }
    if (!StartForReading(err))
        return kExitFailed;
    const QString wanted = list == QLatin1String("--all") ? QStringLiteral("0") : list;
    for (const modPlaylist::Entry& entry : modPlaylist::Entries()) {
        if (entry.SonglistID != wanted && entry.Name.compare(wanted, Qt::CaseInsensitive) != 0)
            continue;
        const QString path = hasOut ? args.at(2) : modPlaylist::DefaultPath(entry);
        QString error;
        if (!modPlaylist::Write(path, entry.SonglistID, entry.Caption, &error)) {
            err << "vowren-cli: playlist: " << error.replace(QStringLiteral("\n\n"), QStringLiteral(" "))
                << '\n';
            return kExitFailed;
        }
        out << path << '\n';
        return kExitOk;
    }
    err << "vowren-cli: playlist: there is no songlist \"" << list << "\" (give its name or key, or --all)\n";
    return kExitFailed;
}

} // namespace

CliCommand WordingCommand() {
    return {QStringLiteral("wording"), kWordingUsage,
            QStringLiteral(
                "Print the invitation wording from the stored choices and the wedding day, the options "
                "given in their place; --save also keeps it as the saved wording."),
            RunWording};
}

CliCommand PlaylistCommand() {
    return {
        QStringLiteral("playlist"), kPlaylistUsage,
        QStringLiteral("Write a songlist (its name or key), or every song, as a .wpl playlist and print its "
                       "path."),
        RunPlaylist};
}
