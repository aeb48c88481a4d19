#pragma once

#include <QString>
#include <functional>

class QWidget;
class frmEditorBase;

// How other screens reach the contact editor, an editor whose Added and Updated carry a CONTACT_ID: the
// guest screens register a factory here at start, so that the invitation, reply, gift and wording
// screens need not be built together with it. Without one, their contact links are disabled.
namespace modContactEditor {

// Makes the editor on a person (an empty id: a new contact, for the role when one is given), not yet
// shown.
using Factory = std::function<frmEditorBase*(QWidget* parent, const QString& contactId, const QString& roleId)>;
// What the opener does when the editor tells it a contact was added or updated.
using Handler = std::function<void(const QString& contactId)>;

void SetFactory(Factory factory);
bool Available();

// Opens the editor modally; its Added and Updated reach the handlers given (an empty one is left out).
// False when no editor is registered.
bool Open(QWidget* parent, const QString& contactId, const Handler& onAdded, const Handler& onUpdated,
          const QString& roleId = QString());
// Opens the editor modally; the key of the contact last added or changed, or empty when nothing was saved.
QString OpenForKey(QWidget* parent, const QString& contactId, const QString& roleId = QString());

} // namespace modContactEditor
