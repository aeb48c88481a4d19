#pragma once

#include "guests/clsContactImport.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QRadioButton;
class QTableView;
class clsImportPreviewModel;

// The preview of an import: every row of the file with a tick, the duplicates of existing contacts
// marked, the selection tools, what to do with duplicates, the 5-digit zip option, and "Import
// Contacts", which writes the ticked rows in one piece of work. Children: "lvwTop", "linkAction_0" to
// "linkAction_2" (tick all, none, turn over), "lblCount", "lblSelected", "opt_0" ("Allow Duplicates"),
// "opt_1" ("Replace Duplicates"), "chk5Digit", "lblInfo", "cmdImport", "cmdCancel".
class frmContactImport : public QDialog {
    Q_OBJECT

public:
    explicit frmContactImport(QWidget* parent = nullptr);

    // Fills the preview from a file's table: under the mapping in IMPORT_FIELD on the CSV route, the
    // suggested one for vCards. False, after the message, when the database can't be read.
    bool Load(const clsImportTable& table, bool csvRoute);
    clsImportPreviewModel* Model() const { return mModel; }
    // Writes the ticked rows with a progress bar that can stop it; true (and the dialog closes) once they
    // are in.
    bool ImportContacts();
    const clsImportResult& Result() const { return mResult; }
    // Shown with the duplicates counted in a warning first, unless the user turned it off.
    int exec() override;

private:
    clsImportPreviewModel* mModel = nullptr;
    QTableView* mList = nullptr;
    QLabel* mCount = nullptr;
    QRadioButton* mReplace = nullptr;
    QCheckBox* mFiveDigits = nullptr;
    clsImportResult mResult;

    QWidget* SelectionTools();
    QWidget* Options();
    void ShowCount();
    void WarnOfDuplicates();
};
