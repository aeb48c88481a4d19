// Seating guests from a script: the same all-or-none rule and the same words as the floor plan.
#include "cli/CliCommand.h"

#include "core/ShowMessage.h"
#include "core/clsDB.h"
#include "seating/modSeating.h"

int Guarded(const QString& command, QTextStream& err, const std::function<int()>& work) {
    try {
        return work();
    } catch (const clsDbError& e) {
        err << "vowren-cli: " << command << ": " << TranslateEngineMessage(e.Message())
            << " Nothing was changed.\n";
        return kExitFailed;
    }
}

namespace {

const QString kSeatUsage = QStringLiteral("seat --table NUMBER ID...");
const QString kUnseatUsage = QStringLiteral("unseat ID...");

int RunSeat(const QStringList& args, QTextStream& out, QTextStream& err) {
    // Without --table the whole wedding is seated by the rules.
    if (args.isEmpty() || (args.first().startsWith(QLatin1String("--")) && args.first() != QLatin1String("--table")))
        return RunAutoSeat(args, out, err);
    const QString number = args.value(1);
    if (args.value(0) != QLatin1String("--table") || !AreKeys({number}) || !AreKeys(args.mid(2))) {
        err << "vowren-cli: seat: usage: " << kSeatUsage << " (numbers and keys are whole numbers above 0)\n";
        return kExitUsage;
    }
    if (!StartForChange(err))
        return kExitFailed;
    return Guarded(QStringLiteral("seat"), err, [&] {
        clsDINING_TABLE table;
        if (!table.OpenRecord(QString(), number)) {
            err << "vowren-cli: seat: there is no table #" << number << ".\n";
            return kExitFailed;
        }
        const modSeating::SeatResult result = modSeating::SeatContacts(table.DINING_TABLE_ID, args.mid(2));
        if (!result.Seated) {
            err << "vowren-cli: seat: "
                << QString(result.Message).replace(QStringLiteral("\n\n"), QStringLiteral(" ")) << '\n';
            return kExitFailed;
        }
        out << "Seated at table #" << number << ": " << args.mid(2).join(QLatin1Char(' ')) << '\n';
        return kExitOk;
    });
}

int RunUnseat(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (!AreKeys(args)) {
        err << "vowren-cli: unseat: usage: " << kUnseatUsage << " (keys are whole numbers above 0)\n";
        return kExitUsage;
    }
    if (!StartForChange(err))
        return kExitFailed;
    return Guarded(QStringLiteral("unseat"), err, [&] {
        modSeating::Unseat(args);
        out << "Unseated: " << args.join(QLatin1Char(' ')) << '\n';
        return kExitOk;
    });
}

} // namespace

int ListTables(QTextStream& out, QTextStream& err) {
    if (!StartForReading(err))
        return kExitFailed;
    return Guarded(QStringLiteral("tables"), err, [&] {
        for (const clsDINING_TABLE& table : clsDINING_TABLE::OpenRecords())
            out << modSeating::StatusText(table, table.GetTotal(clsDINING_TABLE::SeatsTaken)) << '\n';
        return kExitOk;
    });
}

CliCommand SeatCommand() {
    return {
        QStringLiteral("seat"), kSeatUsage + QStringLiteral(" | ") + AutoSeatUsage(),
        QStringLiteral("Seat the contacts of these keys at the table of that number: all of them, or none "
                       "when they do not fit. Without --table, seat every attendee by the seating rules and "
                       "print the chart's figures as JSON (--score: the chart as it stands)."),
        RunSeat};
}

CliCommand UnseatCommand() {
    return {QStringLiteral("unseat"), kUnseatUsage,
            QStringLiteral("Send the contacts of these keys back to the guests still to be seated."),
            RunUnseat};
}
