#pragma once

#include <QString>

class QDateEdit;
class QLineEdit;
class QPlainTextEdit;
class QTimeEdit;
class QWidget;

// The pieces the planning editors share: text boxes by name, the pickers of a date and a time in the
// program's formats, and the line ends of multi-line texts (LF on screen, CR LF in the database).
namespace modPlanningEditors {

QLineEdit* LineBox(const QString& name, QWidget* parent, int maxLength = 255);
// A box of several lines in which Tab moves on.
QPlainTextEdit* TextBox(const QString& name, int lines, QWidget* parent);
// "dd-MMM-yyyy", with a calendar to pick from.
QDateEdit* DatePicker(const QString& name, QWidget* parent);
// "h:mm AM" or "H:mm", as the system's clock shows times.
QTimeEdit* TimePicker(const QString& name, QWidget* parent);

QString ToStored(const QString& screenText);
QString ToScreen(const QString& stored);
// The text of a box as the database keeps it: CR LF line ends, blanks and line ends off both ends.
QString StoredText(const QPlainTextEdit* box);

} // namespace modPlanningEditors
