#include "reports/modLabels.h"

#include "core/modGeneral.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "planning/clsGIFT.h"
#include "planning/clsVENDOR.h"
#include "reports/clsReportCatalogue.h"
#include "widgets/clsINVITE_WIDGET.h"

namespace modLabels {

namespace {

using C = clsReportCatalogue;

const QString kCrLf = QStringLiteral("\r\n");

// Lines of the label, those left empty dropped.
QString Lines(const QStringList& lines) {
    QStringList kept;
    for (const QString& line : lines)
        if (!TrimCrLf(line).trimmed().isEmpty())
            kept << TrimCrLf(line);
    return kept.join(kCrLf);
}

// An address of the list; the label's text is the name lines, then the address lines.
Address Entry(const QString& key, const QString& name, const QStringList& nameLines, const QString& address) {
    const bool hasAddress = !TrimCrLf(address).trimmed().isEmpty();
    return {key, name, Lines(nameLines + QStringList{address}), hasAddress};
}

// A name of several lines as the list shows it: on one line.
QString OneLine(const QString& text) {
    return QString(TrimCrLf(text)).replace(kCrLf, QStringLiteral(" ")).simplified();
}

QList<Address> People(int sectionKey, int filterEnum, const QString& customWhere) {
    QList<Address> addresses;
    // The contacts leave the couple out, as their counts do; the attendees have them.
    const bool excludeCouple = sectionKey == C::Contacts;
    for (const clsCONTACT& contact :
         clsCONTACT::OpenRecords(filterEnum, customWhere, QString(), excludeCouple)) {
        const QString name = contact.TitleFirstMiddleLastSuffix();
        addresses.append(Entry(contact.CONTACT_ID, name, {name}, contact.DisplayAddress(true)));
    }
    return addresses;
}

// The envelope's name lines above its address: a label without the name would reach nobody.
QList<Address> Invitations(int filterEnum, const QString& customWhere) {
    QList<Address> addresses;
    for (const clsINVITE& invite : clsINVITE::OpenRecords(filterEnum, true, customWhere))
        addresses.append(Entry(invite.INVITE_ID, OneLine(invite.OUTER_ENVELOPE_TX),
                               {invite.OUTER_ENVELOPE_TX}, invite.OUTER_ENVELOPE_ADDRESS_TX));
    return addresses;
}

QList<Address> Gifts(int filterEnum, const QString& customWhere) {
    QList<Address> addresses;
    for (const clsGIFT& gift : clsGIFT().OpenRecords(filterEnum, customWhere))
        addresses.append(Entry(gift.GIFT_ID, OneLine(gift.OUTER_ENVELOPE_TX), {gift.OUTER_ENVELOPE_TX},
                               gift.OUTER_ENVELOPE_ADDRESS_TX_Text(true)));
    return addresses;
}

QList<Address> Vendors() {
    QList<Address> addresses;
    for (const clsVENDOR& vendor : clsVENDOR().OpenRecords()) {
        const QString attention =
            vendor.CONTACT_NM.trimmed().isEmpty() ? QString() : QStringLiteral("Attn: ") + vendor.CONTACT_NM;
        addresses.append(Entry(vendor.VENDOR_ID, vendor.VENDOR_NM, {vendor.VENDOR_NM, attention},
                               vendor.ADDRESS_TX_NO_CRLF()));
    }
    return addresses;
}

QList<Address> GuestList(int eventId) {
    QList<Address> addresses;
    for (const clsINVITE_WIDGET& row : clsINVITE_WIDGET::OpenRecords(QString::number(eventId)))
        addresses.append(Entry(row.INVITE_WIDGET_ID, OneLine(row.NAME_TX), {row.NAME_TX},
                               row.OUTER_ENVELOPE_ADDRESS_TX_Text(true)));
    return addresses;
}

} // namespace

bool SectionAllowsLabels(int sectionKey) {
    return !Word(sectionKey).isEmpty();
}

QString Word(int sectionKey) {
    switch (sectionKey) {
    case C::Contacts:
        return QStringLiteral("Contact");
    case C::Invitations:
        return QStringLiteral("Invitation");
    case C::Attendees:
        return QStringLiteral("Attendee");
    case C::Gifts:
        return QStringLiteral("Gift");
    case C::Vendors:
        return QStringLiteral("Vendor");
    case C::Widgets:
        return QStringLiteral("Widgets");
    default:
        return {};
    }
}

QString Title(int sectionKey) {
    return QStringLiteral("Print ") + Word(sectionKey) + QStringLiteral(" Labels");
}

QList<Address> Addresses(int sectionKey, int filterEnum, const QString& customWhere) {
    switch (sectionKey) {
    case C::Contacts:
    case C::Attendees:
        return People(sectionKey, filterEnum, customWhere);
    case C::Invitations:
        return Invitations(filterEnum, customWhere);
    case C::Gifts:
        return Gifts(filterEnum, customWhere);
    case C::Vendors:
        return Vendors();
    case C::Widgets:
        return GuestList(filterEnum);
    default:
        return {};
    }
}

QList<clsLabel> PlaceFrom(int start, const QStringList& texts) {
    QList<clsLabel> labels;
    for (qsizetype i = 0; i < texts.size(); ++i)
        labels.append({QString::number(start + int(i)), texts[i]});
    return labels;
}

} // namespace modLabels
