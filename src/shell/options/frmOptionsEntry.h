#pragma once

#include "core/clsDICT.h"
#include "shell/frmEditorBase.h"

class QFormLayout;
class QLabel;
class QLineEdit;

// The editor of one dictionary row with a single text (payers, roles, titles, songlists, vendor and
// budget categories). It is handed its row, whether it is new, and the kind; each saved row is told to
// the opener by Added or Updated with its key, and Record() holds it. Children: "lblHeader", "txt",
// "lblRoleHint", "cmdSave", "cmdSaveNew", "cmdCancel".
class frmOptionsEntry : public frmEditorBase {
    Q_OBJECT

public:
    frmOptionsEntry(const clsDICT& record, bool isNew, int kind, QWidget* parent = nullptr);

    // The word of a kind in the header: "Payer", "Role", "Vendor category", ...
    static QString KindName(int kind);

    const clsDICT& Record() const { return mRecord; }

public slots:
    // An emptied text can't be saved, so closing then asks nothing.
    void reject() override;

protected:
    // The meal editor adds its price below the text.
    QFormLayout* Form() const { return mForm; }
    // Puts the row's extra value into the fields, and back into the row before it is saved.
    virtual void LoadExtra() {}
    virtual void StoreExtra(clsDICT& /*row*/) const {}
    virtual QString ExtraText() const { return {}; }
    // Makes the header, the hint and the buttons fit the row.
    void ShowRecord();

    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mRecord.ID; }
    void StartNew() override;

private:
    void txt_Change();

    clsDICT mRecord;
    int mKind;
    QFormLayout* mForm = nullptr;
    QLabel* mHeader = nullptr;
    QLineEdit* mText = nullptr;
    QLabel* mRoleHint = nullptr;
};
