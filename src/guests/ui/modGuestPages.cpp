#include "guests/ui/modGuestPages.h"

#include "guests/ui/ContactImportScreenshots.h"
#include "guests/ui/GuestEditorScreenshots.h"
#include "guests/ui/frmContact.h"
#include "guests/ui/frmMain_01_Contacts.h"
#include "guests/ui/frmMain_02_Invitations.h"
#include "guests/ui/frmMain_03_RSVPs.h"
#include "guests/ui/frmMain_04_Attendees.h"
#include "shell/modPages.h"
#include "shell/modScreenshots.h"

void RegisterGuestPages() {
    // The invitation and reply editors open the contact editor through this.
    frmContact::RegisterEditor();
    GuestEditorScreenshots::Register();
    ContactImportScreenshots::Register();
    modScreenshots::Register(QStringLiteral("frmContact"),
                             [] { return new frmContact(QStringLiteral("3"), nullptr); });
    modPages::RegisterPage(1, [](QWidget* parent) { return new frmMain_01_Contacts(parent); });
    modPages::RegisterPage(2, [](QWidget* parent) { return new frmMain_02_Invitations(parent); });
    modPages::RegisterPage(3, [](QWidget* parent) { return new frmMain_03_RSVPs(parent); });
    modPages::RegisterPage(4, [](QWidget* parent) { return new frmMain_04_Attendees(parent); });
}
