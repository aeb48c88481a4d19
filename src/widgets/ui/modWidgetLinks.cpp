#include "widgets/ui/modWidgetLinks.h"

#include "shell/modContactLink.h"

namespace modWidgetLinks {
namespace {
RemarriedOpener& Remarried() {
    static RemarriedOpener opener;
    return opener;
}
} // namespace

void SetRemarriedOpener(RemarriedOpener opener) {
    Remarried() = std::move(opener);
}

bool CanOpenContacts() {
    return modContactLink::CanOpen() && static_cast<bool>(Remarried());
}

bool OpenRemarried(QWidget* parent, int roleId, QString* contactId) {
    return Remarried() && Remarried()(parent, roleId, contactId);
}

} // namespace modWidgetLinks
