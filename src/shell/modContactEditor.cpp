#include "shell/modContactEditor.h"

#include "shell/frmEditorBase.h"

#include <QPointer>

namespace modContactEditor {
namespace {
Factory& Registered() {
    static Factory factory;
    return factory;
}
} // namespace

void SetFactory(Factory factory) {
    Registered() = std::move(factory);
}

bool Available() {
    return static_cast<bool>(Registered());
}

bool Open(QWidget* parent, const QString& contactId, const Handler& onAdded, const Handler& onUpdated,
          const QString& roleId) {
    if (!Available())
        return false;
    QPointer<frmEditorBase> dialog = Registered()(parent, contactId, roleId);
    if (!dialog)
        return false;
    if (onAdded)
        QObject::connect(dialog, &frmEditorBase::Added, dialog, onAdded);
    if (onUpdated)
        QObject::connect(dialog, &frmEditorBase::Updated, dialog, onUpdated);
    dialog->exec();
    delete dialog;
    return true;
}

QString OpenForKey(QWidget* parent, const QString& contactId, const QString& roleId) {
    QString saved;
    const auto keep = [&saved](const QString& key) { saved = key; };
    Open(parent, contactId, keep, keep, roleId);
    return saved;
}

} // namespace modContactEditor
