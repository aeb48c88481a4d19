#pragma once

#include <QString>

class QDialog;
class QDialogButtonBox;
class QLabel;
class QWidget;

// The small notices of the frame (the tour offer, the forums invitation, the screen size hint) share one
// look: a picture on the left, a heading and a few lines beside it, and a row of buttons below.
namespace modNotice {

// The size of a notice's picture, in pixels.
inline constexpr int kPictureSize = 64;

// A picture of the shell's own (see mdiMain::ShellIcon) at the notices' size.
QLabel* Picture(const QString& icon, QWidget* parent);

// Lays the dialog out and returns its (still empty) button row; the dialog is not resizable.
QDialogButtonBox* Build(QDialog* dialog, QWidget* picture, const QString& heading, const QString& text);

} // namespace modNotice
