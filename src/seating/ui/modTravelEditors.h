#pragma once

#include <QString>

class QFormLayout;
class QLineEdit;
class QPlainTextEdit;
class QWidget;
class usrHyperlink;

// What the hotel and flight editors share.
namespace modTravelEditors {

// A one-line box of that name.
QLineEdit* LineBox(const QString& name, QWidget* parent);
// The box of the number the user sees: digits only.
QLineEdit* NumberBox(const QString& name, QWidget* parent);
// A box of several lines ("txt_2" address, notes).
QPlainTextEdit* TextBox(const QString& name, QWidget* parent, int lines);
// The picture beside the e-mail box that writes to the address, and the one beside the web site that
// opens it in the browser; each enabled while its box holds something it can use.
usrHyperlink* EmailPicture(QLineEdit* box, QWidget* parent);
usrHyperlink* WebPicture(QLineEdit* box, QWidget* parent);
// A row of a box and its picture.
QWidget* WithPicture(QWidget* box, usrHyperlink* picture, QWidget* parent);

} // namespace modTravelEditors
