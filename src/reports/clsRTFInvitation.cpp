#include "reports/clsRTFInvitation.h"

#include "core/clsApp.h"
#include "guests/clsINVITE.h"

#include <QRegularExpression>

namespace {
constexpr int kAddressLines = 7;

// The outer envelope as it is written: the names, then the address, a line each.
QStringList EnvelopeLines(const clsINVITE& invite) {
    QStringList lines = invite.OUTER_ENVELOPE_TX.split(QRegularExpression(QStringLiteral("\r\n|\r|\n")));
    lines += invite.OUTER_ENVELOPE_ADDRESS_TX.split(QRegularExpression(QStringLiteral("\r\n|\r|\n")));
    lines.removeAll(QString());
    return lines;
}
} // namespace

RtfMarkup clsRTFInvitation::Title() const {
    return FilterText + QStringLiteral(" Invitations");
}

RtfMarkup clsRTFInvitation::Statistics() const {
    return RtfMarkup(QStringLiteral("Total Records: ") +
                     Count(gApp().TotalInvitations(FilterEnum, CustomWhere))) +
           RtfMarkup::LineBreak() + "* Be sure to check for spelling, capitalization, and abbreviations";
}

QList<clsRTFReport::Column> clsRTFInvitation::Columns() const {
    const QString inner =
        QStringLiteral("Inner Envelope (") +
        (clsINVITE::EtiquetteIsFormal() ? QStringLiteral("Formal") : QStringLiteral("Personal")) +
        QLatin1Char(')');
    QList<Column> columns{{"Done", 790, 690, clsRTFCell::AlignCenter},
                          {"RSVP ID", 1840, 1600},
                          {"Last Name", 4000, 3400},
                          {"Outer Envelope", 9000, 6700},
                          {inner, 12300, 8700}, // room for the caption "# Contacts" on A4 too
                          {"# Contacts", 0, 0, clsRTFCell::AlignCenter}};
    if (!Rtf()) {
        for (int line = 1; line <= kAddressLines; ++line)
            columns.append({QStringLiteral("AddressLines") + QString::number(line)});
    }
    return columns;
}

void clsRTFInvitation::PrintRows() {
    long invited = 0;
    for (const clsINVITE& invite : clsINVITE::OpenRecords(FilterEnum, true, CustomWhere)) {
        const long people = invite.NUMBER_INVITED_NB();
        invited += people;
        QList<RtfMarkup> texts{invite.INVITE_SENT_FG_Text(),
                               invite.INVITE_RSVP_ID,
                               invite.DISPLAY_AS_TX,
                               Rtf() ? invite.OUTER_ENVELOPE_TX_AND_OUTER_ENVELOPE_ADDRESS_TX(true)
                                     : invite.OUTER_ENVELOPE_TX,
                               invite.INNER_ENVELOPE_TX,
                               Count(people)};
        if (!Rtf()) {
            const QStringList lines = EnvelopeLines(invite);
            for (int line = 0; line < kAddressLines; ++line)
                texts.append(lines.value(line));
        }
        PrintRow(texts);
    }
    RTF.SetCellsBOLD(true);
    PrintRow({QString(), QString(), QStringLiteral("Total"), QString(), QString(), Count(invited)});
}
