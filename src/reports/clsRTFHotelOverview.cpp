#include "reports/clsRTFHotelOverview.h"

#include "core/clsApp.h"
#include "reports/clsRTFTravel.h"
#include "seating/clsHOTEL.h"

RtfMarkup clsRTFHotelOverview::Title() const {
    return "Hotel Overview";
}

RtfMarkup clsRTFHotelOverview::Statistics() const {
    return Count(gApp().TotalHotels()) + QStringLiteral(" hotels");
}

QList<clsRTFReport::Column> clsRTFHotelOverview::Columns() const {
    return {{"Hotel", 3000, 2300},
            {"Address", 6000, 4800},
            {"Contact", 8500, 6300},
            {"Phone/Fax/E-mail", 11000, 8800},
            {"Website", 0, 0}};
}

void clsRTFHotelOverview::PrintRows() {
    for (const clsHOTEL& h : clsHOTEL::OpenRecords())
        PrintRow({RtfTravel::NameAndNotes(h.HOTEL_NM, h.NOTES_TX), h.ADDRESS_TX, h.CONTACT_NM,
                  RtfTravel::Numbers(h.PHONE_TX, h.FAX_TX, h.EMAIL_TX), h.WEB_SITE_TX});
}
