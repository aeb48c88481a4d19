#pragma once

#include <QDate>
#include <QDateEdit>

// A date picker that may stay empty: it shows nothing until a date is chosen (from the calendar or by
// typing), and Delete or Backspace on the whole field empties it again.
class usrOptionalDate : public QDateEdit {
    Q_OBJECT

public:
    explicit usrOptionalDate(QWidget* parent = nullptr);

    // Invalid while empty.
    QDate Date() const;
    void SetDate(const QDate& date);
    // "dd-mmm-yyyy", or empty.
    QString Text() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    static QDate Empty() { return {1900, 1, 1}; }
};
