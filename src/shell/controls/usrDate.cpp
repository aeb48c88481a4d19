#include "shell/controls/usrDate.h"

#include "core/modGeneral.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QHBoxLayout>

usrDate::usrDate(QWidget* parent) : QWidget(parent) {
    chkDate = new QCheckBox(this);
    chkDate->setObjectName(QStringLiteral("chkDate"));
    chkDate->setToolTip(QStringLiteral("No date when unticked"));
    dtpDate = new QDateEdit(this);
    dtpDate->setObjectName(QStringLiteral("dtpDate"));
    dtpDate->setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    dtpDate->setDisplayFormat(QStringLiteral("dd-MMM-yyyy"));
    dtpDate->setCalendarPopup(true);
    setFocusProxy(dtpDate);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(chkDate);
    layout->addWidget(dtpDate, 1);
    connect(chkDate, &QCheckBox::toggled, this, [this](bool on) {
        const QSignalBlocker block(dtpDate);
        ShowEmpty(false);
        if (on)
            dtpDate->setDate(Now().date());
        ShowEmpty(!on);
        emit Changed();
    });
    connect(dtpDate, &QDateEdit::dateChanged, this, [this] {
        if (chkDate->isChecked())
            emit Changed();
    });
    SetDate(QDate());
}

QDate usrDate::Date() const {
    return chkDate->isChecked() ? dtpDate->date() : QDate();
}

void usrDate::SetDate(const QDate& date) {
    const QSignalBlocker blockBox(chkDate);
    const QSignalBlocker blockDate(dtpDate);
    chkDate->setChecked(date.isValid());
    ShowEmpty(false);
    dtpDate->setDate(date.isValid() ? date : Now().date());
    ShowEmpty(!date.isValid());
}

QString usrDate::Text() const {
    return Date().isValid() ? FormatDate(Date()) : QString();
}

void usrDate::SetText(const QString& text) {
    SetDate(ParseDateTimeText(text).date());
}

// An empty date shows no digits, so that nobody takes it for a date that was set.
void usrDate::ShowEmpty(bool empty) {
    dtpDate->setEnabled(!empty);
    dtpDate->setSpecialValueText(QString());
    dtpDate->setMinimumDate(empty ? dtpDate->date() : QDate(1752, 9, 14));
    if (empty)
        dtpDate->setSpecialValueText(QStringLiteral(" "));
}
