#include "reports/clsRTFFlights.h"

#include "core/FilterCode.h"
#include "core/clsApp.h"
#include "guests/clsCONTACT.h"
#include "seating/clsFLIGHT.h"

RtfMarkup clsRTFFlights::Title() const {
    return "Flights";
}

RtfMarkup clsRTFFlights::Statistics() const {
    return Count(gApp().TotalFlights()) + QStringLiteral(" Flights");
}

QList<clsRTFReport::Column> clsRTFFlights::Columns() const {
    return {{"RSVP ID", 1440, 1440}, {"Contact Name", 7000, 4500}, {"Phone", 9000, 6500}, {"E-mail", 0, 0}};
}

// Passengers come in the order of their flights' arrival.
void clsRTFFlights::PrintRows() {
    QString flight;
    // Two flights that land at the same minute keep their passengers apart.
    const QList<clsCONTACT> passengers = clsCONTACT::OpenRecords(
        ContactFilter::AttendingWithFlight, {},
        QStringLiteral("FLIGHT.ARRIVES_DT, FLIGHT.FLIGHT_NB, INVITE.INVITE_RSVP_ID, CONTACT.LAST_NM, "
                       "CONTACT.FIRST_NM"));
    for (const clsCONTACT& c : passengers) {
        if (c.FLIGHT_ID != flight) {
            flight = c.FLIGHT_ID;
            GroupRow(clsRTFMaster::BOLD(c.FLIGHT_NM) + RtfMarkup::LineBreak() +
                     RtfMarkup(QStringLiteral("Departs: ") + c.DEPARTS_AIRPORT_NM + QLatin1Char(' ') +
                               clsFLIGHT::DateTimeText(c.DEPARTS_DT)) +
                     RtfMarkup::LineBreak() +
                     RtfMarkup(QStringLiteral("Arrives: ") + c.ARRIVES_AIRPORT_NM + QLatin1Char(' ') +
                               clsFLIGHT::DateTimeText(c.ARRIVES_DT)));
        }
        PrintRow({c.INVITE_RSVP_ID, c.ListName(), c.PHONE_TX, c.EMAIL_TX});
    }
}
