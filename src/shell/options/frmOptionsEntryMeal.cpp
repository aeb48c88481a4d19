#include "shell/options/frmOptionsEntryMeal.h"

#include "shell/controls/usrNumberBox.h"

#include <QFormLayout>

frmOptionsEntryMeal::frmOptionsEntryMeal(const clsDICT& record, bool isNew, QWidget* parent)
    : frmOptionsEntry(record, isNew, clsDICT::Meal, parent) {
    setObjectName(QStringLiteral("frmOptionsEntryMeal"));
    mPrice = new usrNumberBox(this);
    mPrice->setObjectName(QStringLiteral("usrNB"));
    mPrice->setAllowNegation(false);
    mPrice->setMinimumValue(0);
    Form()->insertRow(1, QStringLiteral("Price per person"), mPrice);
    ShowRecord();
}

void frmOptionsEntryMeal::LoadExtra() {
    if (!mPrice)
        return; // the base editor shows the row before the price field exists
    mPrice->setValue(Record().PRICE_NB.toDouble());
}

void frmOptionsEntryMeal::StoreExtra(clsDICT& row) const {
    row.PRICE_NB = QString::number(mPrice->Value(), 'f', 2);
}

QString frmOptionsEntryMeal::ExtraText() const {
    return mPrice ? mPrice->Text() : QString();
}
