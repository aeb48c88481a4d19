#pragma once

#include <QString>
#include <functional>

class QWidget;

// How the widgets page reaches the dialog that names a remarried parent's spouse, which belongs to the
// guest screens (the contact editor comes through modContactEditor): the program registers it at start,
// and a page without them shows the parents' links disabled.
namespace modWidgetLinks {

// Asks who the parent of the role (3 to 6) has remarried; true after OK, with the chosen contact's id
// (empty when the choice was cleared).
using RemarriedOpener = std::function<bool(QWidget* parent, int roleId, QString* contactId)>;

void SetRemarriedOpener(RemarriedOpener opener);
bool CanOpenContacts();

bool OpenRemarried(QWidget* parent, int roleId, QString* contactId);

} // namespace modWidgetLinks
