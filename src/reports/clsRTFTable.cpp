#include "reports/clsRTFTable.h"

#include "core/clsApp.h"
#include "guests/clsCONTACT.h"
#include "seating/clsDINING_TABLE.h"

namespace {
constexpr int kSeated = 21;
} // namespace

RtfMarkup clsRTFTable::Title() const {
    return "Seating Chart";
}

RtfMarkup clsRTFTable::Statistics() const {
    return Count(gApp().TotalTables(clsDINING_TABLE::TotalTables)) + QStringLiteral(" Tables, ") +
           Count(gApp().TotalContacts(kSeated)) + QStringLiteral(" seated attendees");
}

QList<clsRTFReport::Column> clsRTFTable::Columns() const {
    return {{"RSVP ID", 1440, 1440}, {"Contact Name", 8000, 8000}, {"Meal", 0, 0}};
}

void clsRTFTable::PrintRows() {
    QString table;
    for (const clsCONTACT& c : clsCONTACT::OpenRecords(kSeated)) {
        if (c.DINING_TABLE_ID != table) {
            table = c.DINING_TABLE_ID;
            QString caption = QStringLiteral("Table #") + c.DINING_TABLE_NB;
            if (!c.DINING_TABLE_NM.isEmpty())
                caption += QStringLiteral(" - ") + c.DINING_TABLE_NM;
            GroupRow(caption);
        }
        PrintRow({c.INVITE_RSVP_ID, c.ListName(), c.MEAL_TX});
    }
}
