#include "reports/clsRTFFlightOverview.h"

#include "core/clsApp.h"
#include "reports/clsRTFTravel.h"
#include "seating/clsFLIGHT.h"

RtfMarkup clsRTFFlightOverview::Title() const {
    return "Flight Overview";
}

RtfMarkup clsRTFFlightOverview::Statistics() const {
    return Count(gApp().TotalFlights()) + QStringLiteral(" flights");
}

QList<clsRTFReport::Column> clsRTFFlightOverview::Columns() const {
    return {
        {"Flight", 5500, 2600}, {"Departs", 8500, 5600}, {"Arrives", 11500, 8100}, {"# of Attendees", 0, 0}};
}

void clsRTFFlightOverview::PrintRows() {
    for (const clsFLIGHT& f : clsFLIGHT::OpenRecords())
        PrintRow({RtfTravel::NameAndNotes(f.FLIGHT_NM, f.NOTES_TX),
                  RtfTravel::Airport(f.DEPARTS_AIRPORT_NM, f.DEPARTS_DT_DateTimeFormat()),
                  RtfTravel::Airport(f.ARRIVES_AIRPORT_NM, f.ARRIVES_DT_DateTimeFormat()),
                  RtfMarkup::Figure(Count(clsFLIGHT::TotalPassengers(f.FLIGHT_ID)))});
}
