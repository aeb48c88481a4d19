#pragma once

#include <QIcon>
#include <QPixmap>
#include <functional>

class QDialog;
class QDialogButtonBox;
class QLabel;
class QWidget;

// What the invitation and reply editors share in their look: the OK row, arrows and the pictures of
// a response card, drawn as vectors so that they stay crisp at any screen density.
namespace modGuestEditors {

// OK ("cmdOK", the default button) runs the dialog's own check; Cancel ("cmdCancel") closes the dialog
// through its reject(), which may ask first.
QDialogButtonBox* OkCancelButtons(QDialog* dialog, const std::function<void()>& ok);
// An arrow pointing up or down, in the palette's text colour.
QIcon ArrowIcon(bool up);
// A small downward arrow beside a hint.
QLabel* ArrowLabel(QWidget* parent, bool down);
// A response card with a number on it.
QIcon CardIcon();
// A reply card in its envelope: closed (no reply yet) or open (the reply is in), at the given height.
QPixmap ReplyPicture(bool open, int height, qreal devicePixelRatio);

} // namespace modGuestEditors
