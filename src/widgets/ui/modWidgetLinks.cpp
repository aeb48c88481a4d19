#include "widgets/ui/modWidgetLinks.h"

#include "shell/modContactEditor.h"

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
    return modContactEditor::Available() && static_cast<bool>(Remarried());
}

bool OpenRemarried(QWidget* parent, int roleId, QString* contactId) {
    return Remarried() && Remarried()(parent, roleId, contactId);
}

} // namespace modWidgetLinks
