#pragma once

#include "shell/options/frmOptionsEntry.h"

class usrNumberBox;

// The editor of a meal: the text and "Price per person" ("usrNB"). Its save buttons depend on the text
// alone.
class frmOptionsEntryMeal : public frmOptionsEntry {
    Q_OBJECT

public:
    frmOptionsEntryMeal(const clsDICT& record, bool isNew, QWidget* parent = nullptr);

protected:
    void LoadExtra() override;
    void StoreExtra(clsDICT& row) const override;
    QString ExtraText() const override;

private:
    usrNumberBox* mPrice = nullptr;
};
