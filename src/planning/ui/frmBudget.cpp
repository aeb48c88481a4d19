#include "planning/ui/frmBudget.h"

#include "core/ShowMessage.h"
#include "core/clsDICT.h"
#include "core/modGeneral.h"
#include "planning/ui/usrMoneyBox.h"
#include "shell/controls/modLayout.h"
#include "shell/controls/usrDate.h"
#include "shell/controls/usrDropdown.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const QString kVendorList = QStringLiteral("SELECT VENDOR_ID, VENDOR_NM FROM VENDOR ORDER BY VENDOR_NM");

frmBudget::VendorAdder& Adder() {
    static frmBudget::VendorAdder adder;
    return adder;
}

} // namespace

void frmBudget::SetVendorAdder(VendorAdder adder) {
    Adder() = std::move(adder);
}

QString frmBudget::DueDateMissingText() {
    return QStringLiteral("Every expense needs a due date. Choose one under \"Due\" (the day it was paid "
                          "will do for an expense already paid).");
}

frmBudget::frmBudget(const QString& budgetId, const QString& categoryId, QWidget* parent)
    : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmBudget"));
    SetAdding(budgetId.isEmpty());
    if (!budgetId.isEmpty())
        RecordIO::Attempt([&] { mExpense.OpenRecord(budgetId); });
    BuildControls();
    LoadExpense(categoryId);
    MarkClean();
    RefreshEnabling();
    resize(460, 480);
    txtITEM_NM->setFocus();
}

void frmBudget::BuildControls() {
    lblTop = modLayout::HeaderLabel(this);
    lblTop->setObjectName(QStringLiteral("lblTop"));
    imgPASTDUE = new QLabel(QStringLiteral("Pastdue"), this);
    imgPASTDUE->setObjectName(QStringLiteral("imgPASTDUE"));
    imgPASTDUE->setStyleSheet(QStringLiteral("color: white; background: #c00000; padding: 2px 6px;"));
    txtITEM_NM = new QLineEdit(this);
    txtITEM_NM->setObjectName(QStringLiteral("txtITEM_NM"));
    usrACTUAL_AMOUNT_NB = new usrMoneyBox(this);
    usrACTUAL_AMOUNT_NB->setObjectName(QStringLiteral("usrACTUAL_AMOUNT_NB"));
    usrBUDGET_CATEGORY_DICT = new usrDropdown(this);
    usrBUDGET_CATEGORY_DICT->setObjectName(QStringLiteral("usrBUDGET_CATEGORY_DICT"));
    usrBUDGET_CATEGORY_DICT->PopulateX(clsDICT::BudgetCategory);
    usrVENDOR = new usrDropdown(this);
    usrVENDOR->setObjectName(QStringLiteral("usrVENDOR"));
    usrVENDOR->setAddIsVisible(bool(Adder()));
    usrVENDOR->setAddToolTip(QStringLiteral("Click to add vendor"));
    FillVendors();
    usrPAID_BY_DICT = new usrDropdown(this);
    usrPAID_BY_DICT->setObjectName(QStringLiteral("usrPAID_BY_DICT"));
    usrPAID_BY_DICT->PopulateX(clsDICT::PaidBy);
    usrDUE_DT = new usrDate(this);
    usrDUE_DT->setObjectName(QStringLiteral("usrDUE_DT"));
    usrPAID_DT = new usrDate(this);
    usrPAID_DT->setObjectName(QStringLiteral("usrPAID_DT"));
    txtNOTES_TX = new QPlainTextEdit(this);
    txtNOTES_TX->setObjectName(QStringLiteral("txtNOTES_TX"));
    txtNOTES_TX->setTabChangesFocus(true);

    QFormLayout* form = modLayout::Form(nullptr);
    modLayout::CaptionedRow(form, QStringLiteral("&Expense"), txtITEM_NM);
    modLayout::CaptionedRow(form, QStringLiteral("&Amount"), usrACTUAL_AMOUNT_NB);
    modLayout::CaptionedRow(form, QStringLiteral("&Category"), usrBUDGET_CATEGORY_DICT);
    modLayout::CaptionedRow(form, QStringLiteral("&Vendor"), usrVENDOR);
    modLayout::CaptionedRow(form, QStringLiteral("Paid &by"), usrPAID_BY_DICT);
    modLayout::CaptionedRow(form, QStringLiteral("&Due"), usrDUE_DT);
    modLayout::CaptionedRow(form, QStringLiteral("&Paid"), usrPAID_DT);
    auto* top = new QHBoxLayout;
    top->addWidget(lblTop, 1);
    top->addWidget(imgPASTDUE, 0, Qt::AlignVCenter);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(form);
    layout->addWidget(txtNOTES_TX, 1);
    layout->addWidget(ButtonRow({QStringLiteral("cmdSave"), QStringLiteral("cmdCancel"),
                                 QStringLiteral("Save"), QStringLiteral("cmdSaveAndNew")}));

    connect(txtITEM_NM, &QLineEdit::textChanged, this, [this] {
        lblTop->setText(txtITEM_NM->text().trimmed().isEmpty() ? QStringLiteral("Expense")
                                                               : txtITEM_NM->text());
        RefreshEnabling();
    });
    connect(usrACTUAL_AMOUNT_NB, &usrMoneyBox::Changed, this, &frmBudget::RefreshEnabling);
    for (usrDropdown* list : {usrBUDGET_CATEGORY_DICT, usrVENDOR, usrPAID_BY_DICT})
        connect(list, &usrDropdown::Click, this, &frmBudget::RefreshEnabling);
    for (usrDate* date : {usrDUE_DT, usrPAID_DT})
        connect(date, &usrDate::Changed, this, [this] {
            ShowPastdue();
            RefreshEnabling();
        });
    connect(txtNOTES_TX, &QPlainTextEdit::textChanged, this, &frmBudget::RefreshEnabling);
    connect(usrVENDOR, &usrDropdown::AddClick, this, [this] {
        const QString vendorId = Adder() ? Adder()(this) : QString();
        if (!vendorId.isEmpty())
            mfrmVendor_Added(vendorId);
    });
}

void frmBudget::FillVendors() {
    usrVENDOR->PopulateSQL(kVendorList);
}

void frmBudget::LoadExpense(const QString& categoryId) {
    setWindowTitle(IsAdding() ? QStringLiteral("Add New") : QStringLiteral("Edit"));
    if (IsAdding()) {
        mExpense.PAID_BY_ID = QString::fromLatin1(clsBUDGET::kDefaultPaidById);
        mExpense.BUDGET_CATEGORY_ID = categoryId == QLatin1String("0") ? QString() : categoryId;
    }
    txtITEM_NM->setText(mExpense.ITEM_NM);
    lblTop->setText(mExpense.ITEM_NM.isEmpty() ? QStringLiteral("Expense") : mExpense.ITEM_NM);
    if (IsAdding() && mExpense.ACTUAL_AMOUNT_NB.isEmpty())
        usrACTUAL_AMOUNT_NB->Edit()->clear();
    else
        usrACTUAL_AMOUNT_NB->SetAmount(mExpense.Amount());
    usrBUDGET_CATEGORY_DICT->setCode(mExpense.BUDGET_CATEGORY_ID);
    if (usrBUDGET_CATEGORY_DICT->ListIndex() < 0 && usrBUDGET_CATEGORY_DICT->ListCount() > 0 && IsAdding())
        usrBUDGET_CATEGORY_DICT->setListIndex(0);
    usrVENDOR->setCode(mExpense.VENDOR_ID);
    usrPAID_BY_DICT->setCode(mExpense.PAID_BY_ID);
    usrDUE_DT->SetDate(ParseDateTimeText(mExpense.DUE_DT).date());
    usrPAID_DT->SetDate(ParseDateTimeText(mExpense.PAID_DT).date());
    txtNOTES_TX->setPlainText(mExpense.NOTES_TX);
    ShowPastdue();
}

QStringList frmBudget::Snapshot() const {
    return {txtITEM_NM->text(), usrACTUAL_AMOUNT_NB->Text(), usrBUDGET_CATEGORY_DICT->Code(),
            usrVENDOR->Code(),  usrPAID_BY_DICT->Code(),     usrDUE_DT->Text(),
            usrPAID_DT->Text(), txtNOTES_TX->toPlainText()};
}

void frmBudget::RefreshEnabling() {
    const bool ready = IsDirty() && !txtITEM_NM->text().trimmed().isEmpty() &&
                       !usrBUDGET_CATEGORY_DICT->Code().isEmpty() && !usrPAID_BY_DICT->Code().isEmpty();
    SaveButton()->setEnabled(ready);
    SaveAndNewButton()->setEnabled(ready);
}

void frmBudget::ShowPastdue() {
    clsBUDGET shown;
    shown.DUE_DT = usrDUE_DT->Text();
    shown.PAID_DT = usrPAID_DT->Text();
    imgPASTDUE->setVisible(shown.PASTDUE());
}

bool frmBudget::SaveRecord() {
    const clsMoney::ParseResult amount = usrACTUAL_AMOUNT_NB->Result();
    if (!amount.Ok()) {
        ShowMessage(amount.Error, Msg::Exclamation);
        usrACTUAL_AMOUNT_NB->setFocus();
        return false;
    }
    if (!usrDUE_DT->Date().isValid()) {
        ShowMessage(DueDateMissingText(), Msg::Exclamation);
        usrDUE_DT->setFocus();
        return false;
    }
    clsBUDGET expense = mExpense;
    expense.ITEM_NM = txtITEM_NM->text().trimmed();
    expense.ACTUAL_AMOUNT_NB = amount.Amount().Stored();
    expense.BUDGET_CATEGORY_ID = usrBUDGET_CATEGORY_DICT->Code();
    expense.VENDOR_ID = usrVENDOR->Code();
    expense.PAID_BY_ID = usrPAID_BY_DICT->Code();
    expense.DUE_DT = usrDUE_DT->Text();
    expense.PAID_DT = usrPAID_DT->Text();
    expense.NOTES_TX = txtNOTES_TX->toPlainText();
    if (!RecordIO::Attempt([&] { expense.Save(IsAdding()); }))
        return false;
    mExpense = expense;
    return true;
}

// The name, amount, vendor and memo go; category, payer and dates stay for the next expense.
void frmBudget::StartNew() {
    mExpense.BUDGET_ID.clear();
    setWindowTitle(QStringLiteral("Add New"));
    txtITEM_NM->clear();
    usrACTUAL_AMOUNT_NB->Edit()->clear();
    usrVENDOR->setListIndex(-1);
    txtNOTES_TX->clear();
    txtITEM_NM->setFocus();
}

void frmBudget::mfrmVendor_Added(const QString& vendorId) {
    FillVendors();
    usrVENDOR->setCode(vendorId);
    RefreshEnabling();
}
