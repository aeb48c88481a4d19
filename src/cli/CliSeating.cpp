// Commands of the seating: adding and swapping tables, rebuilding the tent cards.
#include "cli/CliCommand.h"

#include "core/ShowMessage.h"
#include "seating/clsDINING_TABLE.h"
#include "seating/clsTENTCARD.h"

#include <climits>
#include <optional>

namespace {

const QString kTablesUsage = QStringLiteral("tables [--add N [--seats S] [--shape K] | --swap A B]");

// A whole number from `lowest` to `highest`, or nothing.
std::optional<int> WholeNumber(const QString& text, int lowest, int highest) {
    bool ok = false;
    const int value = text.toInt(&ok);
    if (!ok || value < lowest || value > highest)
        return std::nullopt;
    return value;
}

int Usage(QTextStream& err, const QString& why) {
    err << "vowren-cli: tables: " << why << " (usage: " << kTablesUsage << ")\n";
    return kExitUsage;
}

int Failed(QTextStream& err, const QString& command, const clsDbError& e) {
    err << "vowren-cli: " << command << ": nothing was changed: " << TranslateEngineMessage(e.Message())
        << '\n';
    return kExitFailed;
}

int AddTables(const QStringList& args, QTextStream& out, QTextStream& err) {
    const std::optional<int> count = WholeNumber(args.value(1), 1, 500);
    if (!count)
        return Usage(err, QStringLiteral("--add takes a count from 1 to 500"));
    clsDINING_TABLE model;
    model.SEATS_NB = QStringLiteral("8");
    model.DINING_TABLE_TYPE_ID = QStringLiteral("1");
    for (qsizetype i = 2; i < args.size(); i += 2) {
        const QString option = args.at(i);
        const bool seats = option == QLatin1String("--seats");
        if (!seats && option != QLatin1String("--shape"))
            return Usage(err, QStringLiteral("unknown option \"%1\"").arg(option));
        const std::optional<int> value = WholeNumber(args.value(i + 1), 1, seats ? 999 : 4);
        if (!value)
            return Usage(err, seats
                                  ? QStringLiteral("--seats takes a number from 1 to 999")
                                  : QStringLiteral("--shape takes 1 (round), 2 (square), 3 or 4 (banquet)"));
        (seats ? model.SEATS_NB : model.DINING_TABLE_TYPE_ID) = QString::number(*value);
    }
    if (!StartForChange(err))
        return kExitFailed;
    try {
        model.DINING_TABLE_NB = clsDINING_TABLE::NEXT_NB();
        const QStringList keys = clsDINING_TABLE::AddTables(*count, model);
        QStringList numbers;
        for (const QString& key : keys) {
            clsDINING_TABLE table;
            table.OpenRecord(key);
            numbers << table.DINING_TABLE_NB;
        }
        out << "Added " << keys.size() << (keys.size() == 1 ? " table: #" : " tables: #")
            << numbers.join(QStringLiteral(", #")) << '\n';
        return kExitOk;
    } catch (const clsDbError& e) {
        return Failed(err, QStringLiteral("tables --add"), e);
    }
}

int SwapTables(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args.size() != 3 || !WholeNumber(args.at(1), 1, INT_MAX) || !WholeNumber(args.at(2), 1, INT_MAX))
        return Usage(err, QStringLiteral("--swap takes two table numbers"));
    if (!StartForChange(err))
        return kExitFailed;
    try {
        clsDINING_TABLE first;
        clsDINING_TABLE second;
        for (auto [table, number] : {std::pair{&first, args.at(1)}, std::pair{&second, args.at(2)}}) {
            if (!table->OpenRecord(QString(), number)) {
                err << "vowren-cli: tables --swap: there is no table #" << number
                    << ". Nothing was changed.\n";
                return kExitFailed;
            }
        }
        clsDINING_TABLE::SwapTables(first.DINING_TABLE_ID, second.DINING_TABLE_ID);
        out << "Swapped the guests and labels of tables #" << args.at(1) << " and #" << args.at(2) << '\n';
        return kExitOk;
    } catch (const clsDbError& e) {
        return Failed(err, QStringLiteral("tables --swap"), e);
    }
}

int RunTables(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args.isEmpty())
        return ListTables(out, err);
    if (args.value(0) == QLatin1String("--add"))
        return AddTables(args, out, err);
    if (args.value(0) == QLatin1String("--swap"))
        return SwapTables(args, out, err);
    return Usage(err, QStringLiteral("tell --add or --swap, or nothing to list them"));
}

int RunTentcards(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args != QStringList{QStringLiteral("--refresh")}) {
        err << "vowren-cli: tentcards: usage: tentcards --refresh\n";
        return kExitUsage;
    }
    if (!StartForChange(err))
        return kExitFailed;
    try {
        clsTENTCARD::RefreshTentcards();
        const long count = clsTENTCARD::Total();
        out << "Refreshed " << count << (count == 1 ? " tentcard (" : " tentcards (")
            << (clsTENTCARD::EtiquetteIsFormal() ? "formal" : "personal") << ")\n";
        return kExitOk;
    } catch (const clsDbError& e) {
        return Failed(err, QStringLiteral("tentcards"), e);
    }
}

} // namespace

CliCommand TablesCommand() {
    return {
        QStringLiteral("tables"), kTablesUsage,
        QStringLiteral("List every table with its seats taken (\"Table #n: t of s seats taken\"); add N "
                       "tables in rows of 12 across the floor (the next numbers, 8 seats and round "
                       "unless told), or swap the guests and labels of the tables numbered A and B; all or "
                       "nothing."),
        RunTables};
}

CliCommand TentcardsCommand() {
    return {QStringLiteral("tentcards"), QStringLiteral("tentcards --refresh"),
            QStringLiteral("Make every tent card anew from the seating, in the etiquette kept with the data, "
                           "and print how many there are; hand-edited wording is replaced."),
            RunTentcards};
}
