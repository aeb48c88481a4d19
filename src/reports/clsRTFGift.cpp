#include "reports/clsRTFGift.h"

#include "core/clsApp.h"
#include "planning/clsGIFT.h"

RtfMarkup clsRTFGift::Title() const {
    return FilterText + (FilterEnum == kEventFilter ? QStringLiteral(" for") : QString()) +
           QStringLiteral(" Gifts");
}

RtfMarkup clsRTFGift::Statistics() const {
    return QStringLiteral("Total Records: ") + Count(gApp().TotalGifts(FilterEnum, CustomWhere));
}

QList<clsRTFReport::Column> clsRTFGift::Columns() const {
    return {{"Thank You Sent", 1440, 1200},    {"Name", 4700, 3300},  {"Envelope", 8200, 5400},
            {"Envelope Address", 11500, 7600}, {"Gift", 12600, 8700}, {"Received", 0, 0}};
}

void clsRTFGift::PrintRows() {
    for (const clsGIFT& gift : clsGIFT().OpenRecords(FilterEnum, CustomWhere)) {
        RtfMarkup what = gift.GIFT_TX;
        if (!gift.NOTES_TX.isEmpty())
            what += RtfMarkup::LineBreak() + RtfMarkup::Italic(gift.NOTES_TX);
        PrintRow({gift.THANK_YOU_SENT_FG_Text(), gift.GIVER_NM, gift.OUTER_ENVELOPE_TX,
                  gift.OUTER_ENVELOPE_ADDRESS_TX_Text(false), what, gift.RECEIVED_DT_DDMMMYYYY()});
    }
}
