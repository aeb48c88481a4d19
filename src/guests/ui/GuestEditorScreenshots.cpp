#include "guests/ui/GuestEditorScreenshots.h"

#include "core/clsDB.h"
#include "guests/ui/frmAttendee.h"
#include "guests/ui/frmInvite.h"
#include "guests/ui/frmInviteRSVPIDs.h"
#include "guests/ui/frmInviteTip.h"
#include "guests/ui/frmRSVP.h"
#include "shell/modScreenshots.h"

namespace GuestEditorScreenshots {
namespace {

// The first key a query gives on the open database, or "" when there is none.
QString FirstKey(const char* sql) {
    try {
        return gDB().Execute(QString::fromLatin1(sql)).Scalar();
    } catch (const clsDbError&) {
        return {};
    }
}

// A family that was sent its invitation and has answered: the richest picture of both editors.
QString AnsweredFamily() {
    return FirstKey(
        "SELECT INVITE.INVITE_ID FROM INVITE WHERE INVITE_SENT_FG = 'Y' AND RSVP_RECEIVED_FG = 'Y' "
        "AND (SELECT COUNT(*) FROM CONTACT WHERE CONTACT.INVITE_ID = INVITE.INVITE_ID) >= 3 "
        "ORDER BY INVITE.INVITE_ID LIMIT 1");
}

} // namespace

void Register() {
    modScreenshots::Register(QStringLiteral("frmInvite"), [] { return new frmInvite(AnsweredFamily()); });
    modScreenshots::Register(QStringLiteral("frmInviteRSVPIDs"), [] { return new frmInviteRSVPIDs; });
    modScreenshots::Register(QStringLiteral("frmInviteTip"), [] { return new frmInviteTip; });
    modScreenshots::Register(QStringLiteral("frmRSVP"), [] { return new frmRSVP(AnsweredFamily()); });
    modScreenshots::Register(QStringLiteral("frmAttendee"), [] {
        return new frmAttendee(
            FirstKey("SELECT CONTACT_ID FROM CONTACT WHERE ATTENDING_FG = 'Y' AND MEAL_ID IS NOT NULL AND "
                     "(ROLE_ID IS NULL OR ROLE_ID NOT IN (1, 2)) ORDER BY CONTACT_ID LIMIT 1"));
    });
}

} // namespace GuestEditorScreenshots
