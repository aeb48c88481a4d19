#pragma once

#include "planning/clsVENDOR.h"
#include "shell/frmEditorBase.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTabWidget;
class usrAssignedFiles;
class usrDropdown;
class usrHyperlink;

// One vendor: name, category, address, contact, phone, fax, e-mail and web site, with links that map the
// address, write an e-mail and visit the site; notes and the assigned files on two tabs ("Files (2)").
// Beside the fields a summary shows what was typed. Save is offered once something changed and the
// name and the category are filled.
class frmVendor : public frmEditorBase {
    Q_OBJECT

public:
    // An empty key adds a new vendor.
    explicit frmVendor(const QString& vendorId, QWidget* parent = nullptr);

    // The lines under the name: the address, the contact, "p. " phone, "f. " fax, "e. " e-mail, each
    // only when filled.
    static QString Details(const clsVENDOR& vendor);
    // "Files (n)".
    static QString FilesCaption(int count);

    const clsVENDOR& Vendor() const { return mVendor; }

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mVendor.VENDOR_ID; }
    void StartNew() override;

private:
    void BuildControls();
    QWidget* BuildFields();
    void LoadVendor();
    clsVENDOR Typed() const;
    void ShowSummary();
    void RefreshEnabling();

    clsVENDOR mVendor;
    QLabel* lblVENDOR_NM;
    QLabel* lblVENDOR_DETAILS;
    QLineEdit* txtVENDOR_NM;
    usrDropdown* usrVENDOR_CATEGORY_DICT;
    QPlainTextEdit* txtADDRESS_TX;
    QLineEdit* txtCONTACT_NM;
    QLineEdit* txtPHONE_TX;
    QLineEdit* txtFAX_TX;
    QLineEdit* txtEMAIL_TX;
    QLineEdit* txtWEB_SITE_TX;
    usrHyperlink* picMapIt;
    usrHyperlink* picEmail;
    usrHyperlink* picWeb;
    QTabWidget* tabs;
    QPlainTextEdit* txtNOTES_TX;
    usrAssignedFiles* usrFiles;
};
