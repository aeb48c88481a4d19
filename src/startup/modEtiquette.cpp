#include "startup/modEtiquette.h"

#include "guests/clsINVITE.h"
#include "seating/clsTENTCARD.h"

namespace modEtiquette {

bool RelabelInvitations(const Progress& progress) {
    QList<clsINVITE> invitations = clsINVITE::OpenRecordsOrThrow(0, true);
    const int total = static_cast<int>(invitations.size());
    int done = 0;
    for (clsINVITE& invitation : invitations) {
        if (!progress(done, total) || !invitation.RefreshInnerEnvelope())
            return false;
        invitation.SaveOrThrow(false);
        ++done;
    }
    return progress(done, total);
}

bool RefreshTentcards() { return clsTENTCARD::RefreshTentcards(); }

} // namespace modEtiquette
