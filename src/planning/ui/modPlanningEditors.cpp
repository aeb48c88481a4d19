#include "planning/ui/modPlanningEditors.h"

#include "core/modGeneral.h"

#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimeEdit>

namespace modPlanningEditors {

QLineEdit* LineBox(const QString& name, QWidget* parent, int maxLength) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setMaxLength(maxLength);
    return box;
}

QPlainTextEdit* TextBox(const QString& name, int lines, QWidget* parent) {
    auto* box = new QPlainTextEdit(parent);
    box->setObjectName(name);
    box->setTabChangesFocus(true);
    box->setMinimumHeight(lines * box->fontMetrics().lineSpacing() + 2 * (box->frameWidth() + 4));
    return box;
}

QDateEdit* DatePicker(const QString& name, QWidget* parent) {
    auto* picker = new QDateEdit(parent);
    picker->setObjectName(name);
    picker->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    picker->setDisplayFormat(QStringLiteral("dd-MMM-yyyy"));
    picker->setCalendarPopup(true);
    return picker;
}

QTimeEdit* TimePicker(const QString& name, QWidget* parent) {
    auto* picker = new QTimeEdit(parent);
    picker->setObjectName(name);
    picker->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    const bool twelveHours = TimePickerFormat() == QLatin1String("h:mm tt");
    picker->setDisplayFormat(twelveHours ? QStringLiteral("h:mm AP") : QStringLiteral("H:mm"));
    return picker;
}

QString ToStored(const QString& screenText) {
    QString stored = screenText;
    stored.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return stored.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
}

QString ToScreen(const QString& stored) {
    return QString(stored).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

QString StoredText(const QPlainTextEdit* box) {
    return ToStored(TrimCrLf(box->toPlainText()));
}

} // namespace modPlanningEditors
