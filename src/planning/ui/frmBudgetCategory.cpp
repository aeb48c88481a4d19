#include "planning/ui/frmBudgetCategory.h"

#include "core/ShowMessage.h"
#include "planning/ui/usrMoneyBox.h"
#include "shell/controls/modLayout.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmBudgetCategory::frmBudgetCategory(const QString& categoryId, QWidget* parent) : frmEditorBase(parent) {
    setObjectName(QStringLiteral("frmBudgetCategory"));
    SetAdding(categoryId.isEmpty());
    if (!categoryId.isEmpty())
        RecordIO::Attempt([&] { mCategory.OpenRecord(categoryId); });
    setWindowTitle(IsAdding() ? QStringLiteral("Add budget category")
                              : QStringLiteral("Edit budget category"));

    QLabel* header = modLayout::HeaderLabel(this);
    header->setText(windowTitle());
    txtName = new QLineEdit(mCategory.BUDGET_CATEGORY_TX, this);
    txtName->setObjectName(QStringLiteral("txtBUDGET_CATEGORY_TX"));
    txtEstimate = new usrMoneyBox(this);
    txtEstimate->setObjectName(QStringLiteral("usrESTIMATE_AMOUNT_NB"));
    txtEstimate->SetAmount(mCategory.Estimate());
    QFormLayout* form = modLayout::Form(nullptr);
    modLayout::CaptionedRow(form, QStringLiteral("&Budget category"), txtName);
    modLayout::CaptionedRow(form, QStringLiteral("&Estimate"), txtEstimate);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(header);
    layout->addLayout(form);
    layout->addStretch(1);
    layout->addWidget(ButtonRow());
    connect(txtName, &QLineEdit::textChanged, this, &frmBudgetCategory::RefreshEnabling);
    connect(txtEstimate, &usrMoneyBox::Changed, this, &frmBudgetCategory::RefreshEnabling);
    MarkClean();
    RefreshEnabling();
    resize(380, 170);
    txtName->setFocus();
}

QStringList frmBudgetCategory::Snapshot() const {
    return {txtName->text(), txtEstimate->Text()};
}

void frmBudgetCategory::RefreshEnabling() {
    SaveButton()->setEnabled(IsDirty() && !txtName->text().trimmed().isEmpty() && txtEstimate->IsValid());
}

bool frmBudgetCategory::SaveRecord() {
    const clsMoney::ParseResult estimate = txtEstimate->Result();
    if (!estimate.Ok()) {
        ShowMessage(estimate.Error, Msg::Exclamation);
        txtEstimate->setFocus();
        return false;
    }
    clsBUDGET_CATEGORY_DICT category = mCategory;
    category.BUDGET_CATEGORY_TX = txtName->text().trimmed();
    category.ESTIMATE_AMOUNT_NB = estimate.Amount().Stored();
    if (!RecordIO::Attempt([&] { category.Save(IsAdding()); }))
        return false;
    mCategory = category;
    return true;
}
