#include "planning/ui/usrBudgetInfo.h"

#include "core/FilterCode.h"
#include "core/RecordIO.h"
#include "core/clsApp.h"
#include "planning/clsBUDGET_CATEGORY_DICT.h"

#include <QGridLayout>
#include <QLabel>

usrBudgetInfo::usrBudgetInfo(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("usrBudgetInfo"));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setVerticalSpacing(4);
    auto* caption = new QLabel(QStringLiteral("Totals"), this);
    caption->setObjectName(QStringLiteral("lblCaption"));
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);
    layout->addWidget(caption, 0, 0, 1, 2);
    lblEstimated = AddLine(1, QStringLiteral("Estimated"), QStringLiteral("lblEstimated"));
    lblActual = AddLine(2, QStringLiteral("Actual"), QStringLiteral("lblActual"));
    lblPlusMinus = AddLine(3, QStringLiteral("+/-"), QStringLiteral("lblPlusMinus"));
    lblPlusMinusCaption = qobject_cast<QLabel*>(layout->itemAtPosition(3, 0)->widget());
    lblCostPerAttendee =
        AddLine(4, QStringLiteral("Cost per attendee"), QStringLiteral("lblCostPerAttendee"));
}

QLabel* usrBudgetInfo::AddLine(int row, const QString& caption, const QString& name) {
    auto* layout = static_cast<QGridLayout*>(this->layout());
    layout->addWidget(new QLabel(caption, this), row, 0);
    auto* value = new QLabel(this);
    value->setObjectName(name);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addWidget(value, row, 1);
    return value;
}

QString usrBudgetInfo::CostPerAttendee(clsMoney actual, long attendees) {
    if (attendees <= 0)
        return QStringLiteral("no attendees yet");
    // Rounded to the cent, half away from zero, in whole numbers.
    const qint64 cents = actual.Cents();
    const qint64 share = (cents >= 0 ? cents + attendees / 2 : cents - attendees / 2) / attendees;
    return clsMoney::FromCents(share).Text();
}

bool usrBudgetInfo::LoadBudget() {
    clsMoney estimated;
    clsMoney actual;
    long attendees = 0;
    const bool read = RecordIO::Attempt([&] {
        estimated = clsBUDGET_CATEGORY_DICT::TotalSumEstimates();
        actual = clsBUDGET_CATEGORY_DICT::TotalSumActual();
        attendees = gApp().TotalContacts(ContactFilter::Attending);
    });
    const clsMoney difference = estimated - actual;
    lblEstimated->setText(estimated.Text());
    lblActual->setText(actual.Text());
    lblPlusMinus->setText(difference.Text());
    const QString look = difference.IsNegative() ? QStringLiteral("color: #ff0000;") : QString();
    lblPlusMinus->setStyleSheet(look);
    lblPlusMinusCaption->setStyleSheet(look);
    lblCostPerAttendee->setText(CostPerAttendee(actual, attendees));
    return read;
}
