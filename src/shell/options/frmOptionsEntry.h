#pragma once

#include "core/clsDICT.h"

#include <QDialog>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

// The editor of one dictionary row with a single text (payers, roles, titles, songlists, vendor and
// budget categories). It is handed its row, whether it is new, and the kind; each saved row is told to
// the opener by Refresh. Children: "lblHeader", "txt", "lblRoleHint", "cmdSave", "cmdSaveNew",
// "cmdCancel".
class frmOptionsEntry : public QDialog {
    Q_OBJECT

public:
    frmOptionsEntry(const clsDICT& record, bool isNew, int kind, QWidget* parent = nullptr);

    // The word of a kind in the header: "Payer", "Role", "Vendor category", ...
    static QString KindName(int kind);

    const clsDICT& Record() const { return mRecord; }
    bool IsNew() const { return mIsNew; }

signals:
    // A row was saved (added or changed).
    void Refresh(const clsDICT& record);

public slots:
    void reject() override;

protected:
    // The meal editor adds its price below the text.
    QFormLayout* Form() const { return mForm; }
    // Puts the row's extra value into the fields, and back into the row before it is saved.
    virtual void LoadExtra() {}
    virtual void StoreExtra(clsDICT& /*row*/) const {}
    virtual bool ExtraIsDirty() const { return false; }
    // Makes the header, the hint and the buttons fit the row.
    void ShowRecord();

private:
    bool SaveRecord();
    void cmdSave_Click();
    void cmdSaveNew_Click();
    void txt_Change();
    bool IsDirty() const;

    clsDICT mRecord;
    bool mIsNew;
    int mKind;
    QString mLoadedText;
    QFormLayout* mForm = nullptr;
    QLabel* mHeader = nullptr;
    QLineEdit* mText = nullptr;
    QLabel* mRoleHint = nullptr;
    QPushButton* mSave = nullptr;
    QPushButton* mSaveNew = nullptr;
    QPushButton* mCancel = nullptr;
};
