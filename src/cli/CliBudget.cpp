// The budget's figures and the thank-you notes from a script.
#include "cli/CliCommand.h"

#include "core/RecordIO.h"
#include "core/modGeneral.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsGIFT.h"

namespace {

const QString kThankYouUsage = QStringLiteral("thank-you [--unsent] ID...");

void PrintSums(QTextStream& out, const clsBudgetCategorySums& sums) {
    out << QuoteCSV(sums.BUDGET_CATEGORY_TX) << ',' << sums.Estimate.Stored() << ',' << sums.Due.Stored()
        << ',' << sums.Paid.Stored() << ',' << sums.Actual().Stored() << ',' << sums.Remaining().Stored()
        << '\n';
}

// Every category with its estimate, due, paid, actual and what is left, then the whole budget; plain
// numbers a spreadsheet sums.
int RunBudget(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (!args.isEmpty()) {
        err << "vowren-cli: budget: takes no arguments\n";
        return kExitUsage;
    }
    if (!StartForReading(err))
        return kExitFailed;
    out << "Budget Category,Estimate,Due,Paid,Actual,Remaining\n";
    for (const clsBudgetCategorySums& sums : clsBUDGET_CATEGORY_DICT::OpenSums())
        PrintSums(out, sums);
    PrintSums(out, clsBudgetCategorySums::WholeBudget(QStringLiteral("0"), QStringLiteral("Totals")));
    return kExitOk;
}

// Marks the notes of those gifts sent (or unsent): all of them, or none when a key is unknown.
int RunThankYou(const QStringList& args, QTextStream& out, QTextStream& err) {
    const bool unsent = args.value(0) == QLatin1String("--unsent");
    const QStringList keys = unsent ? args.mid(1) : args;
    if (!AreKeys(keys)) {
        err << "vowren-cli: thank-you: usage: " << kThankYouUsage << " (keys are whole numbers above 0)\n";
        return kExitUsage;
    }
    if (!StartForChange(err))
        return kExitFailed;
    for (const QString& key : keys) {
        if (!clsGIFT().OpenRecord(key)) {
            err << "vowren-cli: thank-you: there is no gift " << key << ". Nothing was changed.\n";
            return kExitFailed;
        }
    }
    clsGIFT::SetThankYouSent(keys, !unsent);
    out << (unsent ? "Thank-you notes unsent: " : "Thank-you notes sent: ") << keys.join(QLatin1Char(' '))
        << '\n';
    return kExitOk;
}

} // namespace

CliCommand BudgetCommand() {
    return {QStringLiteral("budget"), QStringLiteral("budget"),
            QStringLiteral("every budget category's estimate, due, paid, actual and remainder as CSV"),
            RunBudget};
}

CliCommand ThankYouCommand() {
    return {QStringLiteral("thank-you"), kThankYouUsage,
            QStringLiteral("marks the thank-you notes of those gifts sent (or unsent); all or none"),
            RunThankYou};
}
