#pragma once

#include <QString>
#include <functional>

class QWidget;

// How the widgets page reaches the contact editor and the dialog that names a remarried parent's spouse,
// which belong to the guest screens: the program registers them at start, and a page without them shows
// the parents' links disabled.
namespace modWidgetLinks {

// Opens the contact editor on the person, or on a new contact for the role when the id is empty; true
// when a contact was added or changed.
using ContactOpener = std::function<bool(QWidget* parent, const QString& contactId, const QString& roleId)>;
// Asks who the parent of the role (3 to 6) has remarried; true after OK, with the chosen contact's id
// (empty when the choice was cleared).
using RemarriedOpener = std::function<bool(QWidget* parent, int roleId, QString* contactId)>;

void SetContactOpener(ContactOpener opener);
void SetRemarriedOpener(RemarriedOpener opener);
bool CanOpenContacts();

bool OpenContact(QWidget* parent, const QString& contactId, const QString& roleId);
bool OpenRemarried(QWidget* parent, int roleId, QString* contactId);

} // namespace modWidgetLinks
