#pragma once

#include <QDialog>

// A small picture window: the front and the back of a response card, with the RSVP ID pencilled on
// the back where the couple writes it. Children: "picSample", "cmdClose".
class frmInviteTip : public QDialog {
    Q_OBJECT

public:
    explicit frmInviteTip(QWidget* parent = nullptr);
};

// The picture itself, so that it scales crisply with the window.
class usrRSVPSample : public QWidget {
    Q_OBJECT

public:
    explicit usrRSVPSample(QWidget* parent = nullptr);
    QSize sizeHint() const override { return {560, 250}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};
