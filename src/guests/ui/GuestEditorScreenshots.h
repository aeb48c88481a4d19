#pragma once

// Registers the invitation and reply editors with the screenshot run (`vowren --screenshots DIR`), each
// opened on a fitting record of the demo wedding: frmInvite, frmInviteRSVPIDs, frmInviteTip, frmRSVP,
// frmAttendee.
namespace GuestEditorScreenshots {
void Register();
}
