#include "shell/options/frmOptionsEntry.h"

#include "core/ShowMessage.h"
#include "shell/controls/modLayout.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The roles of the bride and the groom keep their first names in a hint once they are renamed.
QString OriginalRoleText(const QString& id, const QString& text) {
    if (id.trimmed() == QLatin1String("1") && text != QLatin1String("Bride"))
        return QStringLiteral("Bride");
    if (id.trimmed() == QLatin1String("2") && text != QLatin1String("Groom"))
        return QStringLiteral("Groom");
    return {};
}

} // namespace

frmOptionsEntry::frmOptionsEntry(const clsDICT& record, bool isNew, int kind, QWidget* parent)
    : QDialog(parent), mRecord(record), mIsNew(isNew), mKind(kind) {
    setObjectName(QStringLiteral("frmOptionsEntry"));
    mRecord.DICT_TYPE = kind;
    mLoadedText = mRecord.TX;

    mHeader = modLayout::HeaderLabel(this, 1.25);
    mText = new QLineEdit(this);
    mText->setObjectName(QStringLiteral("txt"));
    mText->setMaxLength(255);
    mText->setMinimumWidth(280);
    mRoleHint = new QLabel(this);
    mRoleHint->setObjectName(QStringLiteral("lblRoleHint"));
    mRoleHint->setEnabled(false);

    mForm = new QFormLayout;
    mForm->addRow(KindName(kind) + QStringLiteral(":"), mText);
    mForm->addRow(QString(), mRoleHint);

    auto* buttons = new QDialogButtonBox(this);
    mSave = buttons->addButton(QStringLiteral("Save"), QDialogButtonBox::AcceptRole);
    mSave->setObjectName(QStringLiteral("cmdSave"));
    mSaveNew = buttons->addButton(QStringLiteral("Save and New"), QDialogButtonBox::ActionRole);
    mSaveNew->setObjectName(QStringLiteral("cmdSaveNew"));
    mCancel = buttons->addButton(QStringLiteral("Cancel"), QDialogButtonBox::RejectRole);
    mCancel->setObjectName(QStringLiteral("cmdCancel"));
    mSave->setDefault(true);
    connect(mSave, &QPushButton::clicked, this, &frmOptionsEntry::cmdSave_Click);
    connect(mSaveNew, &QPushButton::clicked, this, &frmOptionsEntry::cmdSaveNew_Click);
    connect(mCancel, &QPushButton::clicked, this, &frmOptionsEntry::reject);
    connect(mText, &QLineEdit::textChanged, this, &frmOptionsEntry::txt_Change);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mHeader);
    layout->addSpacing(6);
    layout->addLayout(mForm);
    layout->addStretch(1);
    layout->addWidget(buttons);

    ShowRecord();
}

QString frmOptionsEntry::KindName(int kind) {
    switch (kind) {
    case clsDICT::BudgetCategory:
        return QStringLiteral("Budget category");
    case clsDICT::Meal:
        return QStringLiteral("Meal");
    case clsDICT::PaidBy:
        return QStringLiteral("Payer");
    case clsDICT::Role:
        return QStringLiteral("Role");
    case clsDICT::Title:
        return QStringLiteral("Title");
    case clsDICT::TaskGroup:
        return QStringLiteral("Task group");
    case clsDICT::Songlist:
        return QStringLiteral("Songlist");
    case clsDICT::VendorCategory:
        return QStringLiteral("Vendor category");
    default:
        return {};
    }
}

void frmOptionsEntry::ShowRecord() {
    setWindowTitle(mIsNew ? QStringLiteral("Add New") : QStringLiteral("Edit"));
    mHeader->setText((mIsNew ? QStringLiteral("Add new ") : QStringLiteral("Edit ")) + KindName(mKind));
    mText->setText(mRecord.TX);
    const QString original = mIsNew ? QString() : OriginalRoleText(mRecord.ID, mRecord.TX);
    mRoleHint->setText(QStringLiteral("originally ") + original);
    mRoleHint->setVisible(!original.isEmpty());
    mSaveNew->setVisible(mIsNew);
    LoadExtra();
    txt_Change();
    mText->selectAll();
    mText->setFocus();
}

void frmOptionsEntry::txt_Change() {
    const bool hasText = !mText->text().trimmed().isEmpty();
    mSave->setEnabled(hasText);
    mSaveNew->setEnabled(hasText);
}

bool frmOptionsEntry::IsDirty() const {
    return mText->text() != mLoadedText || ExtraIsDirty();
}

bool frmOptionsEntry::SaveRecord() {
    if (mText->text().trimmed().isEmpty())
        return false;
    clsDICT row = mRecord;
    row.TX = mText->text().trimmed();
    StoreExtra(row);
    if (!row.Save(mIsNew))
        return false; // the message is shown; the editor stays open with what was typed
    mRecord = row;
    mLoadedText = mText->text();
    emit Refresh(mRecord);
    return true;
}

void frmOptionsEntry::cmdSave_Click() {
    if (SaveRecord())
        accept();
}

void frmOptionsEntry::cmdSaveNew_Click() {
    if (!SaveRecord())
        return;
    mRecord = clsDICT(mKind);
    mIsNew = true;
    mLoadedText.clear();
    ShowRecord();
}

void frmOptionsEntry::reject() {
    const CloseChoice choice = AskBeforeClose(IsDirty() && mSave->isEnabled());
    if (choice == CloseChoice::Save)
        cmdSave_Click();
    else if (choice == CloseChoice::Discard)
        QDialog::reject();
}
