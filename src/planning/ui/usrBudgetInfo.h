#pragma once

#include "core/clsMoney.h"

#include <QWidget>

class QLabel;

// The totals of the whole budget: "Estimated", "Actual" and "+/-" (their difference, label and value red
// below zero) in the currency format of the system, and under them what the wedding costs per attendee.
class usrBudgetInfo : public QWidget {
    Q_OBJECT

public:
    explicit usrBudgetInfo(QWidget* parent = nullptr);

    // Reads the totals and the attendees anew. False after a message.
    bool LoadBudget();
    // "$120.50", or a word when nobody attends yet.
    static QString CostPerAttendee(clsMoney actual, long attendees);

private:
    QLabel* AddLine(int row, const QString& caption, const QString& name);

    QLabel* lblEstimated;
    QLabel* lblActual;
    QLabel* lblPlusMinusCaption = nullptr;
    QLabel* lblPlusMinus;
    QLabel* lblCostPerAttendee;
};
