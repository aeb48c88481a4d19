#pragma once

#include "planning/clsBUDGET.h"
#include "shell/frmEditorBase.h"

#include <functional>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class usrDropdown;
class usrMoneyBox;
class usrDate;

// One expense: name, amount, category, vendor (with a link to add a new one), payer, due and paid
// dates and a memo. "Pastdue" shows while it is unpaid after its due day. Save is offered once something
// changed and the name, the category and the payer are filled; an expense without a due date is refused
// with a word before anything is written, as is an amount that is no amount.
class frmBudget : public frmEditorBase {
    Q_OBJECT

public:
    // An empty key adds a new expense in the given category ("0" or empty: the first one listed).
    frmBudget(const QString& budgetId, const QString& categoryId, QWidget* parent = nullptr);

    // Opens the vendor editor for a new vendor; the new vendor's key, or empty when none was added.
    using VendorAdder = std::function<QString(QWidget* parent)>;
    static void SetVendorAdder(VendorAdder adder);

    const clsBUDGET& Expense() const { return mExpense; }
    static QString DueDateMissingText();

public slots:
    void mfrmVendor_Added(const QString& vendorId);

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mExpense.BUDGET_ID; }
    void StartNew() override;

private:
    void BuildControls();
    void LoadExpense(const QString& categoryId);
    void RefreshEnabling();
    void ShowPastdue();
    void FillVendors();

    clsBUDGET mExpense;
    QLabel* lblTop;
    QLabel* imgPASTDUE;
    QLineEdit* txtITEM_NM;
    usrMoneyBox* usrACTUAL_AMOUNT_NB;
    usrDropdown* usrBUDGET_CATEGORY_DICT;
    usrDropdown* usrVENDOR;
    usrDropdown* usrPAID_BY_DICT;
    usrDate* usrDUE_DT;
    usrDate* usrPAID_DT;
    QPlainTextEdit* txtNOTES_TX;
};
