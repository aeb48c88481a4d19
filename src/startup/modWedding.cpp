#include "startup/modWedding.h"

#include "core/clsApp.h"
#include "guests/clsCONTACT.h"
#include "planning/clsEVENT.h"

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

} // namespace modWedding
