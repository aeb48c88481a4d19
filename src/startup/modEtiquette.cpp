#include "startup/modEtiquette.h"

#include "guests/clsINVITE.h"
#include "seating/clsTENTCARD.h"

namespace modEtiquette {

bool ChangeInvitationEtiquette(bool formal, const Progress& progress) {
    return clsINVITE::ChangeEtiquette(formal, progress);
}

void RefreshTentcards() { clsTENTCARD::RefreshTentcards(); }

} // namespace modEtiquette
