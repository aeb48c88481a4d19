#pragma once

#include <QDialog>

// "Duplicate records found": how many rows of the preview repeat a contact, what the mark means, and a
// box to stop the warning. Children: "lblCount", "lblLegend", "lblText", "chkDontShow", "cmdOK".
class frmContactImportDuplicate : public QDialog {
    Q_OBJECT

public:
    frmContactImportDuplicate(int count, QWidget* parent = nullptr);
};
