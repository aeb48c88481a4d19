#pragma once

#include <QString>
#include <functional>

class QWidget;
class frmEditorBase;

// How the invitation and reply editors reach the contact editor, an editor whose Added and Updated carry
// a CONTACT_ID; whoever provides it registers a factory here, so that these editors need not be built
// together with it.
namespace modContactEditor {

// Makes the editor on a person (an empty id: a new contact), not yet shown.
using Factory = std::function<frmEditorBase*(QWidget* parent, const QString& contactId)>;
// What the opener does when the editor tells it a contact was added or updated.
using Handler = std::function<void(const QString& contactId)>;

void SetFactory(Factory factory);
bool Available();

// Opens the editor modally; its Added and Updated reach the handlers given (an empty one is left out).
// False when no editor is registered.
bool Open(QWidget* parent, const QString& contactId, const Handler& onAdded, const Handler& onUpdated);

} // namespace modContactEditor
