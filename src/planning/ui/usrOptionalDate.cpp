#include "planning/ui/usrOptionalDate.h"

#include "core/modGeneral.h"

#include <QCalendarWidget>
#include <QKeyEvent>

usrOptionalDate::usrOptionalDate(QWidget* parent) : QDateEdit(parent) {
    setCalendarPopup(true);
    setDisplayFormat(QStringLiteral("dd-MMM-yyyy"));
    setMinimumDate(Empty());
    setSpecialValueText(QStringLiteral(" "));
    setDate(Empty());
}

QDate usrOptionalDate::Date() const {
    return date() == Empty() ? QDate() : date();
}

void usrOptionalDate::SetDate(const QDate& value) {
    setDate(value.isValid() ? value : Empty());
}

QString usrOptionalDate::Text() const {
    return Date().isValid() ? FormatDate(Date()) : QString();
}

void usrOptionalDate::keyPressEvent(QKeyEvent* event) {
    const bool wholeField = lineEdit()->selectedText() == lineEdit()->text();
    if ((event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) && wholeField) {
        SetDate(QDate());
        return;
    }
    QDateEdit::keyPressEvent(event);
}

// The calendar of an empty field opens on today, not on the empty marker.
void usrOptionalDate::mousePressEvent(QMouseEvent* event) {
    if (!Date().isValid())
        calendarWidget()->setSelectedDate(Now().date());
    QDateEdit::mousePressEvent(event);
}
