#include "shell/options/frmOptionsEntry.h"

#include "core/RecordIO.h"
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
    : frmEditorBase(parent), mRecord(record), mKind(kind) {
    setObjectName(QStringLiteral("frmOptionsEntry"));
    mRecord.DICT_TYPE = kind;
    SetAdding(isNew);

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

    EditorButtonNames names;
    names.SaveAndNew = QStringLiteral("cmdSaveNew");
    QDialogButtonBox* buttons = ButtonRow(names);
    // Here Save comes first, then Save and New.
    buttons->removeButton(SaveAndNewButton());
    buttons->addButton(SaveAndNewButton(), QDialogButtonBox::ActionRole);
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
    setWindowTitle(IsAdding() ? QStringLiteral("Add New") : QStringLiteral("Edit"));
    mHeader->setText((IsAdding() ? QStringLiteral("Add new ") : QStringLiteral("Edit ")) + KindName(mKind));
    mText->setText(mRecord.TX);
    const QString original = IsAdding() ? QString() : OriginalRoleText(mRecord.ID, mRecord.TX);
    mRoleHint->setText(QStringLiteral("originally ") + original);
    mRoleHint->setVisible(!original.isEmpty());
    SaveAndNewButton()->setVisible(IsAdding());
    LoadExtra();
    txt_Change();
    mText->selectAll();
    mText->setFocus();
    MarkClean();
}

void frmOptionsEntry::txt_Change() {
    const bool hasText = !mText->text().trimmed().isEmpty();
    SaveButton()->setEnabled(hasText);
    SaveAndNewButton()->setEnabled(hasText);
}

QStringList frmOptionsEntry::Snapshot() const {
    return {mText->text(), ExtraText()};
}

bool frmOptionsEntry::SaveRecord() {
    if (mText->text().trimmed().isEmpty())
        return false;
    clsDICT row = mRecord;
    row.TX = mText->text().trimmed();
    StoreExtra(row);
    // A refused row (a duplicate, say) is shown; the editor stays open with what was typed.
    if (!RecordIO::Attempt([this, &row] { row.Save(IsAdding()); }))
        return false;
    mRecord = row;
    return true;
}

void frmOptionsEntry::StartNew() {
    mRecord = clsDICT(mKind);
    SetAdding(true);
    ShowRecord();
}

void frmOptionsEntry::reject() {
    if (SaveButton()->isEnabled())
        frmEditorBase::reject();
    else
        QDialog::reject();
}
