#pragma once

#include <QDate>
#include <QWidget>

class QCheckBox;
class QDateEdit;

// A date that may be left empty: the box in front switches the date on and off, and a date switched on
// starts at today. Shown as "dd-MMM-yyyy" with a calendar to pick from.
// Children: "chkDate" (the box), "dtpDate" (the date).
class usrDate : public QWidget {
    Q_OBJECT

public:
    explicit usrDate(QWidget* parent = nullptr);

    // Invalid while empty.
    QDate Date() const;
    // An invalid date empties the control.
    void SetDate(const QDate& date);
    // "dd-mmm-yyyy", or empty; SetText takes the program's date text (a time behind it is dropped).
    QString Text() const;
    void SetText(const QString& text);

signals:
    void Changed();

private:
    void ShowEmpty(bool empty);

    QCheckBox* chkDate = nullptr;
    QDateEdit* dtpDate = nullptr;
};
