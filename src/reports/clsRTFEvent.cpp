#include "reports/clsRTFEvent.h"

#include "core/clsApp.h"
#include "planning/clsEVENT.h"

namespace {

QString Labelled(const QString& label, const QString& value) {
    return value.isEmpty() ? QString() : label + value;
}

} // namespace

RtfMarkup clsRTFEvent::Title() const {
    return "Events";
}

// The count printed here has always been the vendors' total, and the users' printed copies show it so.
RtfMarkup clsRTFEvent::Statistics() const {
    return QStringLiteral("Total Records: ") + Count(gApp().TotalVendors());
}

QList<clsRTFReport::Column> clsRTFEvent::Columns() const {
    return {{"Event", 2400, 2100},
            {"Date", 3800, 3500},
            {"Address", 7000, 4900},
            {"Contact", 9000, 6700},
            {"Phone/Fax/E-mail", 11290, 8700},
            {"Website", 0, 0}};
}

void clsRTFEvent::PrintRows() {
    for (const clsEVENT& event : clsEVENT().OpenRecords()) {
        RtfMarkup name(event.EVENT_TX);
        if (!event.NOTES_TX.isEmpty())
            name += RtfMarkup::LineBreak() + clsRTFMaster::ITALIC(event.NOTES_TX);
        const QString numbers = Stacked(Stacked(Labelled(QStringLiteral("(p) "), event.PHONE_TX),
                                                Labelled(QStringLiteral("(f) "), event.FAX_TX)),
                                        event.EMAIL_TX);
        PrintRow({name, event.EVENT_DT_DateTimeFormat(), event.DisplayAddress(true), event.CONTACT_NM,
                  numbers, event.WEB_SITE_TX});
    }
}
