#include "startup/modEtiquette.h"

#include "core/clsVOWREN.h"
#include "guests/clsINVITE.h"
#include "seating/clsTENTCARD.h"

namespace modEtiquette {

namespace {
// The row of the key-value store that holds the etiquette of the tent cards.
constexpr int kTentCardEtiquetteKey = 8;
} // namespace

bool ChangeInvitationEtiquette(bool formal, const Progress& progress) {
    return clsINVITE::ChangeEtiquette(formal, progress);
}

void ChangeTentCardEtiquette(bool formal) {
    try {
        clsTransaction tx(gDB());
        gVowren().QuickUpdate(kTentCardEtiquetteKey, clsVOWREN::BooleanText(formal));
        clsTENTCARD::RefreshTentcards();
        tx.Commit();
    } catch (...) {
        gVowren().OpenRecords(); // memory follows the row that was put back
        throw;
    }
}

} // namespace modEtiquette
