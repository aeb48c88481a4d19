#include "reports/clsRTFRole.h"

#include "guests/clsCONTACT.h"

namespace {
constexpr int kHasRole = 23;
} // namespace

RtfMarkup clsRTFRole::Title() const {
    return "Roles";
}

QList<clsRTFReport::Column> clsRTFRole::Columns() const {
    return {{"Role", 4500, 4000}, {"Name", 9000, 8000}, {"Pronunciation", 0, 0}};
}

void clsRTFRole::PrintRows() {
    // The pronunciation is left blank for the DJ to write in.
    for (const clsCONTACT& c : clsCONTACT::OpenRecords(
             kHasRole, QString(), QStringLiteral("ROLE_TX, CONTACT.LAST_NM, CONTACT.FIRST_NM"), true))
        PrintRow({c.ROLE_TX, c.TitleFirstMiddleLastSuffix()});
}
