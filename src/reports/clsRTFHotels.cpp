#include "reports/clsRTFHotels.h"

#include "core/FilterCode.h"
#include "core/clsApp.h"
#include "guests/clsCONTACT.h"
#include "reports/clsRTFTravel.h"
#include "seating/clsHOTEL.h"

#include <QHash>

RtfMarkup clsRTFHotels::Title() const {
    return "Hotels";
}

RtfMarkup clsRTFHotels::Statistics() const {
    return Count(gApp().TotalHotels()) + QStringLiteral(" Hotels");
}

QList<clsRTFReport::Column> clsRTFHotels::Columns() const {
    return {{"RSVP ID", 1440, 1200},
            {"Contact Name", 6000, 4400},
            {"Phone", 8000, 6400},
            {"E-mail", 10000, 9000},
            {"Room #", 0, 0}};
}

// The room number is left blank for the couple to fill in at the front desk.
void clsRTFHotels::PrintRows() {
    QHash<QString, clsHOTEL> hotels;
    for (const clsHOTEL& h : clsHOTEL::OpenRecords())
        hotels.insert(h.HOTEL_ID, h);
    QString current;
    const QList<clsCONTACT> guests = clsCONTACT::OpenRecords(
        ContactFilter::AttendingWithHotel, {},
        QStringLiteral("HOTEL.HOTEL_NM, INVITE.INVITE_RSVP_ID, CONTACT.LAST_NM, CONTACT.SORT_ORDER_NB"));
    for (const clsCONTACT& c : guests) {
        if (c.HOTEL_ID != current) {
            current = c.HOTEL_ID;
            const clsHOTEL h = hotels.value(current);
            const QString details = Stacked(h.ADDRESS_TX_NO_CRLF(), RtfTravel::Numbers(h.PHONE_TX, h.FAX_TX));
            RtfMarkup caption = clsRTFMaster::BOLD(c.HOTEL_NM);
            if (!details.isEmpty())
                caption += RtfMarkup::LineBreak() + RtfMarkup(details);
            GroupRow(caption);
        }
        PrintRow({c.INVITE_RSVP_ID, c.ListName(), c.PHONE_TX, c.EMAIL_TX, QString()});
    }
}
