#include "reports/clsRTFTableLayout.h"

#include "seating/clsDINING_TABLE.h"

RtfMarkup clsRTFTableLayout::Title() const {
    return "Table Overview";
}

QList<clsRTFReport::Column> clsRTFTableLayout::Columns() const {
    return {{"Table #", 1440, 1000, clsRTFCell::AlignCenter},
            {"Table Label", 8000, 6200},
            {"# of seats", 10500, 8100, clsRTFCell::AlignCenter},
            {"# of seats available", 0, 0, clsRTFCell::AlignCenter}};
}

void clsRTFTableLayout::PrintRows() {
    for (const clsDINING_TABLE& table : clsDINING_TABLE::OpenRecords())
        PrintRow(
            {table.DINING_TABLE_NB, table.DINING_TABLE_NM, table.SEATS_NB,
             RtfMarkup::Figure(Count(table.GetTotal(clsDINING_TABLE::SeatsFree)))}); // below 0 when overfull
}
