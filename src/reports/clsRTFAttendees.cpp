#include "reports/clsRTFAttendees.h"

#include "core/clsApp.h"
#include "guests/clsCONTACT.h"

RtfMarkup clsRTFAttendees::Title() const {
    return FilterText + QStringLiteral(" Attendees");
}

RtfMarkup clsRTFAttendees::Statistics() const {
    return QStringLiteral("Total Records: ") +
           Count(gApp().TotalContacts(FilterEnum, CustomWhere, ExcludeBrideGroom));
}

QList<clsRTFReport::Column> clsRTFAttendees::Columns() const {
    if (!Rtf()) {
        QList<Column> columns;
        for (const char* caption :
             {"RSVP ID", "Title", "First", "Middle", "Last", "Suffix", "Nickname", "Gender", "IsChild",
              "Meal", "Table #", "Table Name", "Notes", "Sort Order"})
            columns.append({caption});
        return columns;
    }
    return {{"RSVP ID", 1100, 1100},
            {"Attendee", 6000, 4500},
            {"Meal", 9500, 6800},
            {"Table #", 10550, 7850, clsRTFCell::AlignCenter},
            {"Table Name", 0, 0}};
}

void clsRTFAttendees::PrintRows() {
    for (const clsCONTACT& c :
         clsCONTACT::OpenRecords(FilterEnum, CustomWhere, QString(), ExcludeBrideGroom)) {
        if (!Rtf()) {
            PrintRow({c.INVITE_RSVP_ID, c.TITLE_TX, c.FIRST_NM, c.MIDDLE_NM, c.LAST_NM, c.SUFFIX_TX,
                      c.NICK_NM, c.GENDER_FG_Text(), YesNo(c.CHILD_FG), c.MEAL_TX, c.DINING_TABLE_NB,
                      c.DINING_TABLE_NM, c.NOTES_TX, c.SORT_ORDER_NB});
            continue;
        }
        RtfMarkup name(c.ListName());
        if (!c.NOTES_TX.trimmed().isEmpty())
            name += RtfMarkup::LineBreak() +
                    clsRTFMaster::ITALIC(QStringLiteral("(") + c.NOTES_TX.trimmed() + QStringLiteral(")"));
        PrintRow({c.INVITE_RSVP_ID, name, c.MEAL_TX, c.DINING_TABLE_NB, c.DINING_TABLE_NM});
    }
}
