#include "reports/clsRTFTentcard.h"

#include "core/clsApp.h"
#include "seating/clsTENTCARD.h"

RtfMarkup clsRTFTentcard::Title() const {
    return "Tentcards";
}

RtfMarkup clsRTFTentcard::Statistics() const {
    return QStringLiteral("Total Records: ") + Count(gApp().TotalTentcards());
}

QList<clsRTFReport::Column> clsRTFTentcard::Columns() const {
    return {{"Tentcard", 6500, 6500}, {"Table #", 8000, 8000, clsRTFCell::AlignCenter}, {"Table Name", 0, 0}};
}

void clsRTFTentcard::PrintRows() {
    for (const clsTENTCARD& card : clsTENTCARD::OpenRecords())
        PrintRow({card.TENTCARD_TX, card.DINING_TABLE_NB, card.DINING_TABLE_NM});
}
