#pragma once

#include "planning/clsEVENT.h"
#include "shell/frmEditorBase.h"

class QDateEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTimeEdit;
class usrHyperlink;

// One event: its name, date and time, address, contact and numbers, e-mail and web site, notes. Saving the
// wedding day (event 1) moves the wedding date of the whole program.
// Children: "txtEVENT_TX", "dt", "tm", "txtADDRESS_TX", "txtCITY_TX", "txtSTATE_TX", "txtZIP_TX",
// "txtCOUNTRY_TX", "txtCONTACT_NM", "txtPHONE_TX", "txtFAX_TX", "txtEMAIL_TX", "txtWEB_SITE_TX",
// "txtNOTES_TX", "picEmail", "picWeb", "picMapIt", "lblTop", "cmdSave", "cmdSaveAndNew", "cmdCancel".
class frmEvent : public frmEditorBase {
    Q_OBJECT

public:
    // An empty key adds a new event.
    explicit frmEvent(const QString& eventId, QWidget* parent = nullptr);

    const clsEVENT& Event() const { return mEvent; }

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mEvent.EVENT_ID; }
    void StartNew() override;

private:
    QWidget* BuildFields();
    QWidget* BuildLinks();
    void ShowEvent(const clsEVENT& event);
    clsEVENT EventOnScreen() const;
    void UpdateState();

    clsEVENT mEvent;
    QLabel* lblTop = nullptr;
    QLineEdit* txtName = nullptr;
    QDateEdit* dt = nullptr;
    QTimeEdit* tm = nullptr;
    QPlainTextEdit* txtAddress = nullptr;
    QList<QLineEdit*> mLines; // city ... web site, in the order of the record's columns
    QPlainTextEdit* txtNotes = nullptr;
    usrHyperlink* picEmail = nullptr;
    usrHyperlink* picWeb = nullptr;
    usrHyperlink* picMapIt = nullptr;
};
