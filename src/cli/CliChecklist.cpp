// Commands of the checklist: due dates counted back from the wedding day.
#include "cli/CliCommand.h"

#include "core/ShowMessage.h"
#include "planning/clsEVENT.h"
#include "planning/clsTASK.h"

namespace {

const QString kChecklistUsage = QStringLiteral("checklist --refresh-due-dates");

int RunChecklist(const QStringList& args, QTextStream& out, QTextStream& err) {
    if (args != QStringList{QStringLiteral("--refresh-due-dates")}) {
        err << "vowren-cli: checklist: usage: " << kChecklistUsage << '\n';
        return kExitUsage;
    }
    if (!StartForChange(err))
        return kExitFailed;
    try {
        gWeddingEvent().OpenRecord(QStringLiteral("1"));
        const QString wedding = gWeddingEvent().EVENT_DT_DateFormat();
        if (wedding.isEmpty()) {
            err << "vowren-cli: checklist: there is no wedding date to count back from; set it on the Events "
                   "page first. Nothing was changed.\n";
            return kExitFailed;
        }
        const int changed = clsTASK().RefreshDueDates();
        out << "Refreshed the due dates from the wedding day " << wedding << ": " << changed
            << (changed == 1 ? " task changed\n" : " tasks changed\n");
        return kExitOk;
    } catch (const clsDbError& e) {
        err << "vowren-cli: checklist: nothing was changed: " << TranslateEngineMessage(e.Message()) << '\n';
        return kExitFailed;
    }
}

} // namespace

CliCommand ChecklistCommand() {
    return {QStringLiteral("checklist"), kChecklistUsage,
            QStringLiteral("Set every task's due date from its time frame and the wedding day, hand-set and "
                           "completed tasks alike, and print how many dates changed; all or nothing."),
            RunChecklist};
}
