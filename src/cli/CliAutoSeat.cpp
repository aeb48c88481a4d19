// Seating the whole wedding by the couple's rules from a script: one JSON object out.
#include "cli/CliCommand.h"

#include "seating/modAutoSeat.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

struct AutoSeatArgs {
    SeaterOptions Options;
    bool DryRun = false;
    bool ScoreOnly = false;
};

// False for anything but the options of the usage line.
bool ParseArgs(const QStringList& args, AutoSeatArgs& parsed) {
    for (int i = 0; i < args.size(); ++i) {
        const QString& arg = args[i];
        bool ok = true;
        if (arg == QLatin1String("--keep-seated"))
            parsed.Options.KeepSeated = true;
        else if (arg == QLatin1String("--dry-run"))
            parsed.DryRun = true;
        else if (arg == QLatin1String("--score"))
            parsed.ScoreOnly = true;
        else if (arg == QLatin1String("--seed") && i + 1 < args.size())
            parsed.Options.Seed = args[++i].toULongLong(&ok);
        else if (arg == QLatin1String("--seconds") && i + 1 < args.size())
            parsed.Options.Seconds = args[++i].toDouble(&ok);
        else
            return false;
        if (!ok || parsed.Options.Seconds <= 0 || parsed.Options.Seconds > 3600)
            return false;
    }
    return !parsed.ScoreOnly || args.size() == 1;
}

QJsonObject Figures(const SeatingChart& chart) {
    return {{QStringLiteral("seated"), chart.Seated},
            {QStringLiteral("unseated"), chart.Unseated},
            {QStringLiteral("hard_violations"), chart.HardViolations},
            {QStringLiteral("score"), qint64(chart.Score)},
            {QStringLiteral("friend_pairs"), qint64(chart.FriendPairs)},
            {QStringLiteral("problems"), QJsonArray::fromStringList(chart.Problems)}};
}

void Print(QTextStream& out, const QJsonObject& object) {
    out << QJsonDocument(object).toJson(QJsonDocument::Compact) << '\n';
}

} // namespace

QString AutoSeatUsage() {
    return QStringLiteral("seat [--keep-seated] [--seed S] [--seconds T] [--dry-run] | seat --score");
}

int RunAutoSeat(const QStringList& args, QTextStream& out, QTextStream& err) {
    AutoSeatArgs parsed;
    if (!ParseArgs(args, parsed)) {
        err << "vowren-cli: seat: usage: " << AutoSeatUsage()
            << " (S a whole number, T seconds above 0 and at most 3600)\n";
        return kExitUsage;
    }
    const bool reads = parsed.ScoreOnly || parsed.DryRun;
    if (!(reads ? StartForReading(err) : StartForChange(err)))
        return kExitFailed;
    return Guarded(QStringLiteral("seat"), err, [&] {
        if (parsed.ScoreOnly) {
            Print(out, Figures(modAutoSeat::MeasureCurrent()));
            return kExitOk;
        }
        const SeatingChart chart = modAutoSeat::Propose(parsed.Options);
        if (!parsed.DryRun)
            modAutoSeat::Apply(chart);
        QJsonObject figures = Figures(chart);
        figures.insert(QStringLiteral("seconds"), qRound(chart.Seconds * 1000) / 1000.0);
        figures.insert(QStringLiteral("written"), !parsed.DryRun);
        Print(out, figures);
        return kExitOk;
    });
}
