#include "startup/modWedding.h"

#include <cmath>

#include "core/clsApp.h"
#include "core/clsVOWREN.h"
#include "core/modGeneral.h"
#include "guests/clsCONTACT.h"
#include "planning/clsBUDGET.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "planning/clsEVENT.h"

namespace {

// The global records read again from the rows, kept or put back.
void ReopenGlobals() {
    gBride().OpenRecord(QStringLiteral("1"));
    gGroom().OpenRecord(QStringLiteral("2"));
    gWeddingEvent().OpenRecord(QStringLiteral("1"));
    gVowren().OpenRecords();
}

} // namespace

namespace modWedding {

bool CoreInformationGathered() {
    return clsApp::CoreInformationGathered(gBride().FIRST_NM, gBride().LAST_NM, gGroom().FIRST_NM, gGroom().LAST_NM,
                                           gWeddingEvent().EVENT_DT);
}

QString WeddingCaption() {
    return gBride().FirstMiddle().trimmed() + QStringLiteral(" & ") + gGroom().FirstMiddle().trimmed() +
           QStringLiteral("'s Wedding");
}

QString CoupleNames() {
    return gBride().FirstLast().trimmed() + QStringLiteral(" and ") + gGroom().FirstLast().trimmed();
}

QString WeddingDateTime() { return gWeddingEvent().EVENT_DT; }

void SaveFirstStart(const clsCONTACT& bride, const clsCONTACT& groom, const QString& when,
                    const QMap<QString, double>& estimates) {
    try {
        clsTransaction tx(gDB());
        clsCONTACT::SaveCouple(bride, groom);
        clsEVENT::SaveWeddingDay(when);
        QMap<QString, clsMoney> amounts;
        for (auto estimate = estimates.cbegin(); estimate != estimates.cend(); ++estimate)
            amounts.insert(estimate.key(), clsMoney::FromCents(std::llround(estimate.value() * 100.0)));
        clsBUDGET_CATEGORY_DICT::SaveEstimates(amounts);
        // Every expense is due on the wedding day until told otherwise.
        clsBUDGET::SetEveryDueDate(FormatDate(ParseDateTimeText(when).date()));
        tx.Commit();
    } catch (...) {
        ReopenGlobals();
        throw;
    }
    ReopenGlobals();
}

} // namespace modWedding
