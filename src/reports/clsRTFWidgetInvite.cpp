#include "reports/clsRTFWidgetInvite.h"

#include "guests/clsCONTACT.h"
#include "planning/clsEVENT.h"
#include "reports/clsReportCatalogue.h"
#include "widgets/clsINVITE_WIDGET.h"

QString clsRTFWidgetInvite::EventName() const {
    clsEVENT event;
    event.OpenRecord(EVENT_ID);
    return event.EVENT_TX;
}

QString clsRTFWidgetInvite::FilePrefix() const {
    return clsReportCatalogue::FilePrefix(ClassName(), EventName());
}

RtfMarkup clsRTFWidgetInvite::Title() const {
    return gBride().FIRST_NM + QStringLiteral(" and ") + gGroom().FIRST_NM + QStringLiteral("'s ") +
           EventName();
}

RtfMarkup clsRTFWidgetInvite::Statistics() const {
    return QStringLiteral("Total Records: ") + Count(clsINVITE_WIDGET::GetTotal(EVENT_ID)) +
           QStringLiteral(" Invitations, ") + Count(clsINVITE_WIDGET::GetTotalContacts(EVENT_ID)) +
           QStringLiteral(" Invited Contacts");
}

QList<clsRTFReport::Column> clsRTFWidgetInvite::Columns() const {
    return {{"Name", 4200, 3000},
            {"Address", 7600, 5600},
            {"Phone/E-mail", 10600, 7700},
            {"Attending?", 12000, 8900, clsRTFCell::AlignCenter},
            {"Gift", 0, 0}};
}

void clsRTFWidgetInvite::PrintRows() {
    for (const clsINVITE_WIDGET& row : clsINVITE_WIDGET::OpenRecords(EVENT_ID)) {
        const QString name = row.CONTACT_ID.isEmpty() ? row.DISPLAY_NM : row.NAME_TX;
        PrintRow({name, row.OUTER_ENVELOPE_ADDRESS_TX_Text(true), Stacked(row.PHONE_TX, row.EMAIL_TX)});
    }
}
