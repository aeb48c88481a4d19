#include "guests/ui/modContactEditor.h"

#include <QDialog>
#include <QMetaObject>
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

bool Open(QWidget* parent, const QString& contactId, QObject* receiver) {
    if (!Available())
        return false;
    QPointer<QDialog> dialog = Registered()(parent, contactId);
    if (!dialog)
        return false;
    const QMetaObject* meta = receiver->metaObject();
    if (meta->indexOfSlot("mfrmContact_Added(QString)") >= 0)
        QObject::connect(dialog, SIGNAL(Added(QString)), receiver, SLOT(mfrmContact_Added(QString)));
    if (meta->indexOfSlot("mfrmContact_Updated(QString)") >= 0)
        QObject::connect(dialog, SIGNAL(Updated(QString)), receiver, SLOT(mfrmContact_Updated(QString)));
    dialog->exec();
    delete dialog;
    return true;
}

} // namespace modContactEditor
