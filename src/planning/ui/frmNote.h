#pragma once

#include "planning/clsNOTEBOOK.h"
#include "shell/frmEditorBase.h"

class QDateEdit;
class QLineEdit;
class QPlainTextEdit;
class QTabWidget;
class QTimeEdit;
class usrAssignedFiles;

// One note of the notebook, new or edited: when, the subject (required), the notes, and on the second
// tab the files assigned to it ("Files (n)"). A new note starts now.
// Children: "dtPick", "tmPick", "txtSUBJECT_TX", "tabNote", "txtNOTES_TX", "usrAssignedFiles", "cmdSave",
// "cmdSaveAndNew", "cmdCancel".
class frmNote : public frmEditorBase {
    Q_OBJECT

public:
    // An empty key adds a note.
    explicit frmNote(const QString& notebookId, QWidget* parent = nullptr);

    const clsNOTEBOOK& Note() const { return mNote; }

public slots:
    void mfrmNotebookAddFile_Refresh();

protected:
    QStringList Snapshot() const override;
    bool SaveRecord() override;
    QString RecordKey() const override { return mNote.NOTEBOOK_ID; }
    void StartNew() override;

private:
    void BuildControls();
    void ShowNote(const clsNOTEBOOK& note);
    QString PickedDateTime() const;
    void UpdateButtons();

    clsNOTEBOOK mNote;
    QDateEdit* dtPick = nullptr;
    QTimeEdit* tmPick = nullptr;
    QLineEdit* txtSUBJECT_TX = nullptr;
    QTabWidget* tabNote = nullptr;
    QPlainTextEdit* txtNOTES_TX = nullptr;
    usrAssignedFiles* mFiles = nullptr;
};
