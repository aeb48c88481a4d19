#pragma once

#include <QString>
#include <functional>

class QWidget;

// How screens outside the guest list reach the contact editor, which belongs to the guest screens: the
// program registers it at start, and a screen without it shows its "add contact" links disabled.
namespace modContactLink {

// Opens the contact editor on the person, or on a new contact (for the role, when one is given) when the
// id is empty. Gives back the key of the contact last added or changed, or empty when nothing was saved.
using Opener = std::function<QString(QWidget* parent, const QString& contactId, const QString& roleId)>;

void SetOpener(Opener opener);
bool CanOpen();
QString Open(QWidget* parent, const QString& contactId, const QString& roleId = QString());

} // namespace modContactLink
