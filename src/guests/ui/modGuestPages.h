#pragma once

// Plugs the guest list's pages into the main window: Contacts, and the pages of invitations, replies
// and attendees as they exist.
void RegisterGuestPages();
