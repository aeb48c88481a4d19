#include "shell/modContactLink.h"

namespace modContactLink {
namespace {
Opener& Registered() {
    static Opener opener;
    return opener;
}
} // namespace

void SetOpener(Opener opener) {
    Registered() = std::move(opener);
}

bool CanOpen() {
    return static_cast<bool>(Registered());
}

QString Open(QWidget* parent, const QString& contactId, const QString& roleId) {
    return CanOpen() ? Registered()(parent, contactId, roleId) : QString();
}

} // namespace modContactLink
