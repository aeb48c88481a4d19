#include "reports/clsRTFAttendeesTabulaRasa.h"

#include "guests/clsCONTACT.h"

namespace {
constexpr int kAttending = 14;
const char* const kCaptions[] = {"Title",  "First",   "Middle", "Last",  "Suffix", "Nickname",
                                 "Gender", "IsChild", "Meal",   "Notes", "GroupID"};
} // namespace

QList<clsRTFReport::Column> clsRTFAttendeesTabulaRasa::Columns() const {
    // The file is meant for an import, so the columns simply share the page.
    const int count = int(std::size(kCaptions));
    QList<Column> columns;
    for (int i = 0; i < count; ++i) {
        const int edge = Rtf() ? RTF.TABLE_WIDTH() * (i + 1) / count : 0;
        columns.append({kCaptions[i], edge, edge});
    }
    return columns;
}

void clsRTFAttendeesTabulaRasa::PrintRows() {
    for (const clsCONTACT& c : clsCONTACT::OpenRecords(kAttending))
        PrintRow({c.TITLE_TX, c.FIRST_NM, c.MIDDLE_NM, c.LAST_NM, c.SUFFIX_TX, c.NICK_NM, c.GENDER_FG_Text(),
                  YesNo(c.CHILD_FG), c.MEAL_TX, c.NOTES_TX, c.INVITE_RSVP_ID});
}
