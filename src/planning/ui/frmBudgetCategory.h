#pragma once

#include "planning/clsBUDGET_CATEGORY_DICT.h"
#include "shell/frmEditorBase.h"

class QLineEdit;
class usrMoneyBox;

// A budget category: its name and its estimate. Save is offered once something changed, the name is
// not blank and the estimate is an amount.
class frmBudgetCategory : public frmEditorBase {
    Q_OBJECT

public:
    // An empty key adds a new category.
    explicit frmBudgetCategory(const QString& categoryId, QWidget* parent = nullptr);

    const clsBUDGET_CATEGORY_DICT& Category() const { return mCategory; }

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mCategory.BUDGET_CATEGORY_ID; }

private:
    void RefreshEnabling();

    clsBUDGET_CATEGORY_DICT mCategory;
    QLineEdit* txtName;
    usrMoneyBox* txtEstimate;
};
