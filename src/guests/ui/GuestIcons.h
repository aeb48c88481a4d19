#pragma once

#include <QIcon>
#include <QList>

class clsCONTACT;

// The small pictures of the guest lists, drawn as vectors so that they stay crisp at any screen
// density. Their order is the index a grid's icon column holds.
namespace GuestIcons {

enum Index : int {
    None = 0,
    Bride,
    Groom,
    Man,
    Woman,
    Boy,
    Girl,
    InviteUnsent, // on an invitation that has not gone out
    InviteSent,   // sent, no reply yet
    InviteReplied,
    Count
};

// Every picture, by index; the first is empty.
const QList<QIcon>& All();
// The picture of a person: bride, groom, or by gender and age.
int PersonIndex(const clsCONTACT& contact);
// The picture of where a person's invitation stands; None when there is no invitation.
int InviteIndex(const clsCONTACT& contact);

} // namespace GuestIcons
