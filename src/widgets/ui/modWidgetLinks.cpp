#include "widgets/ui/modWidgetLinks.h"

namespace modWidgetLinks {
namespace {
ContactOpener& Contacts() {
    static ContactOpener opener;
    return opener;
}
RemarriedOpener& Remarried() {
    static RemarriedOpener opener;
    return opener;
}
} // namespace

void SetContactOpener(ContactOpener opener) {
    Contacts() = std::move(opener);
}

void SetRemarriedOpener(RemarriedOpener opener) {
    Remarried() = std::move(opener);
}

bool CanOpenContacts() {
    return static_cast<bool>(Contacts()) && static_cast<bool>(Remarried());
}

bool OpenContact(QWidget* parent, const QString& contactId, const QString& roleId) {
    return Contacts() && Contacts()(parent, contactId, roleId);
}

bool OpenRemarried(QWidget* parent, int roleId, QString* contactId) {
    return Remarried() && Remarried()(parent, roleId, contactId);
}

} // namespace modWidgetLinks
