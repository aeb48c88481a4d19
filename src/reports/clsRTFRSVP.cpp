#include "reports/clsRTFRSVP.h"

#include "core/clsApp.h"
#include "guests/clsINVITE.h"

RtfMarkup clsRTFRSVP::Title() const {
    return FilterText + QStringLiteral(" RSVPs");
}

RtfMarkup clsRTFRSVP::Statistics() const {
    return QStringLiteral("Total Records: ") + Count(gApp().TotalInvitations(FilterEnum, CustomWhere));
}

QList<clsRTFReport::Column> clsRTFRSVP::Columns() const {
    return {{"Received", 1100, 1100, clsRTFCell::AlignCenter},
            {"RSVP ID", 2200, 2200},
            {"Invitation", 8000, 5700},
            {"Phone/E-mail", 11800, 8700},
            {"# Attending", 0, 0, clsRTFCell::AlignCenter}};
}

void clsRTFRSVP::PrintRows() {
    long all = 0;
    long received = 0;
    long attending = 0;
    long invited = 0;
    for (const clsINVITE& invite : clsINVITE::OpenRecords(FilterEnum, false, CustomWhere)) {
        const bool replied = invite.RSVP_RECEIVED_FG == QLatin1String("Y");
        const long coming = invite.NUMBER_ATTENDING_NB();
        const long people = invite.NUMBER_INVITED_NB();
        ++all;
        if (replied) {
            ++received;
            attending += coming;
            invited += people;
        }
        // Still waiting: bold. Answered, and nobody comes: struck through in grey.
        RTF.SetCellsBOLD(invite.RSVP_RECEIVED_FG == QLatin1String("N"));
        const bool declined = replied && coming == 0;
        RTF.SetCellsSTRIKE(declined);
        RTF.SetCellsCELL_FORECOLOR(declined ? clsRTFMasterTemp::Gray : clsRTFMasterTemp::NoColor);
        PrintRow(
            {invite.RSVP_RECEIVED_FG_Text(), invite.INVITE_RSVP_ID,
             invite.OUTER_ENVELOPE_TX.isEmpty() ? invite.DISPLAY_AS_TX : invite.OUTER_ENVELOPE_TX,
             Stacked(invite.PHONE_TX, invite.EMAIL_TX),
             replied ? Count(coming) + QStringLiteral(" / ") + Count(people) : QStringLiteral("No reply")});
    }
    RTF.SetCellsCELL_FORECOLOR(clsRTFMasterTemp::NoColor);
    RTF.SetCellsBOLD(true);
    PrintRow({QStringLiteral("Total"), QString(), QString(), QString(),
              Count(attending) + QStringLiteral(" / ") + Count(invited)});
    NoteRow(Count(received) + QStringLiteral(" of ") + Count(all) + QStringLiteral(" ") +
            QStringLiteral(" RSVPs received"));
}
