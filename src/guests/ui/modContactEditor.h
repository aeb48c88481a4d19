#pragma once

#include <QString>
#include <functional>

class QDialog;
class QObject;
class QWidget;

// How the invitation and reply editors reach the contact editor. The contact editor is a dialog with
// the signals Added(QString) and Updated(QString), each carrying a CONTACT_ID; whoever provides it
// registers a factory here, so that these editors need not be built together with it.
namespace modContactEditor {

// Makes the editor on a person (an empty id: a new contact), not yet shown.
using Factory = std::function<QDialog*(QWidget* parent, const QString& contactId)>;

void SetFactory(Factory factory);
bool Available();

// Opens the editor modally. Its Added and Updated reach the receiver's slots
// mfrmContact_Added(QString) and mfrmContact_Updated(QString), where the receiver has them. False when
// no editor is registered.
bool Open(QWidget* parent, const QString& contactId, QObject* receiver);

} // namespace modContactEditor
