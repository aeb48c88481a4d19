#pragma once

#include <QString>

class QFormLayout;
class QGroupBox;
class QLabel;
class QWidget;

// The pieces of a dialog's layout that every dialog draws alike.
namespace modLayout {

// The bold heading at the top of a dialog ("lblHeader"), its font the given times the usual size.
QLabel* HeaderLabel(QWidget* parent, qreal scale = 1.35);
// A bold label heading one part of a dialog.
QLabel* BoldLabel(const QString& name, QWidget* parent);
// A form of captioned rows: the captions right-aligned beside their fields, which grow.
QFormLayout* Form(QWidget* parent);
// A row of a form whose caption (with its mnemonic) takes the focus to the buddy, the field itself
// unless told. Gives back the caption.
QLabel* CaptionedRow(QFormLayout* form, const QString& caption, QWidget* field, QWidget* buddy = nullptr);
// A framed group of controls under its title.
QGroupBox* Group(const QString& title, QWidget* parent, const QString& name = {});

} // namespace modLayout
