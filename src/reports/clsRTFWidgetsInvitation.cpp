#include "reports/clsRTFWidgetsInvitation.h"

#include "widgets/clsWORDING.h"

void clsRTFWidgetsInvitation::PrintRows() {
    clsWORDING wording;
    wording.OpenRecord(QString::number(clsWORDING::InvitationWording));
    RTF.ResetCells();
    RTF.AddCell(Rtf() ? RTF.TABLE_WIDTH() : 0, wording.WORDING_TX, clsRTFCell::AlignCenter,
                clsRTFCell::AlignTop, clsRTFCell::NoBorder);
    RTF.PrintCells(false, 0);
}
