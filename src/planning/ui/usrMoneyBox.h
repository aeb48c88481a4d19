#pragma once

#include "core/clsMoney.h"

#include <QWidget>

class QLabel;
class QLineEdit;

// An amount field: the amount typed in the system's currency format ("1.234,50" on a German system),
// and under it, in red, what is wrong with it while it can't be taken. Leaving the field writes a good
// amount anew with its group separators and two decimals. Children: "txt" and "lblError".
class usrMoneyBox : public QWidget {
    Q_OBJECT

public:
    explicit usrMoneyBox(QWidget* parent = nullptr);

    void SetAmount(clsMoney amount);
    // The amount, or the error that keeps it from being one.
    clsMoney::ParseResult Result() const;
    bool IsValid() const { return Result().Ok(); }
    QString Text() const;
    QLineEdit* Edit() const { return mEdit; }

signals:
    void Changed();

private:
    void ShowError();

    QLineEdit* mEdit;
    QLabel* mError;
};
