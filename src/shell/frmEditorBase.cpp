#include "shell/frmEditorBase.h"

#include "core/ShowMessage.h"
#include "shell/controls/modLayout.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>

frmEditorBase::frmEditorBase(QWidget* parent) : QDialog(parent) {}

QLabel* frmEditorBase::Header(QWidget* parent) {
    if (!mHeader) {
        mHeader = modLayout::HeaderLabel(parent ? parent : this);
        ShowCaption();
    }
    return mHeader;
}

QDialogButtonBox* frmEditorBase::ButtonRow(const EditorButtonNames& names) {
    if (mButtons)
        return mButtons;
    mButtons = new QDialogButtonBox(this);
    const auto add = [this](const QString& caption, const QString& name, QDialogButtonBox::ButtonRole role) {
        QPushButton* button = mButtons->addButton(caption, role);
        button->setObjectName(name);
        return button;
    };
    if (!names.SaveAndNew.isEmpty()) {
        mSaveAndNew = add(names.SaveAndNewCaption, names.SaveAndNew, QDialogButtonBox::AcceptRole);
        mSaveAndNew->setToolTip(QStringLiteral("Save, then start the next one (Ctrl+Shift+S)"));
        connect(mSaveAndNew, &QPushButton::clicked, this, &frmEditorBase::cmdSaveAndNew_Click);
        connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), this), &QShortcut::activated,
                this, &frmEditorBase::cmdSaveAndNew_Click);
    }
    mSave = add(names.SaveCaption, names.Save, QDialogButtonBox::AcceptRole);
    mSave->setDefault(true);
    mSave->setToolTip(QStringLiteral("Save and close (Ctrl+S)"));
    mCancel = add(QStringLiteral("Cancel"), names.Cancel, QDialogButtonBox::RejectRole);
    connect(mSave, &QPushButton::clicked, this, &frmEditorBase::cmdSave_Click);
    connect(mCancel, &QPushButton::clicked, this, &frmEditorBase::reject);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, [this] {
        if (mSave->isEnabled())
            cmdSave_Click();
    });
    return mButtons;
}

void frmEditorBase::SetRecordNoun(const QString& noun) {
    mNoun = noun;
    ShowCaption();
}

void frmEditorBase::SetAdding(bool adding) {
    mAdding = adding;
    ShowCaption();
}

void frmEditorBase::ShowCaption() {
    if (mNoun.isEmpty())
        return;
    const QString caption = (mAdding ? QStringLiteral("Add New ") : QStringLiteral("Edit ")) + mNoun;
    setWindowTitle(caption);
    if (mHeader)
        mHeader->setText(caption);
}

bool frmEditorBase::Save() {
    if (!SaveRecord())
        return false;
    const bool added = mAdding;
    SetAdding(false);
    MarkClean();
    if (added)
        emit Added(RecordKey());
    else
        emit Updated(RecordKey());
    return true;
}

bool frmEditorBase::cmdSave_Click() {
    if (!Save())
        return false;
    QDialog::accept();
    return true;
}

bool frmEditorBase::cmdSaveAndNew_Click() {
    if (!Save())
        return false;
    StartNew();
    SetAdding(true);
    MarkClean();
    return true;
}

void frmEditorBase::reject() {
    const CloseChoice choice = AskBeforeClose(IsDirty(), CloseQuestion());
    if (choice == CloseChoice::Save)
        cmdSave_Click();
    else if (choice == CloseChoice::Discard)
        QDialog::reject();
}
