#include "startup/modEtiquette.h"

#include "guests/clsINVITE.h"
#include "seating/clsTENTCARD.h"

namespace modEtiquette {

bool ChangeInvitationEtiquette(bool formal, const Progress& progress) {
    return clsINVITE::ChangeEtiquette(formal, progress);
}

bool RefreshTentcards() { return clsTENTCARD::RefreshTentcards(); }

} // namespace modEtiquette
