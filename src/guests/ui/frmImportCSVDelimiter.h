#pragma once

#include <QDialog>

class QComboBox;

// "CSV Delimiter": the character that parts the fields of a CSV file to import (comma, semicolon or
// tab), kept in the settings. Children: "cboDelimiter", "cmdSave", "cmdCancel".
class frmImportCSVDelimiter : public QDialog {
    Q_OBJECT

public:
    explicit frmImportCSVDelimiter(QWidget* parent = nullptr);
    // Keeps the choice, tells the opener and closes.
    void Save();

signals:
    // The delimiter changed: the file is to be read again.
    void Refresh();

private:
    QComboBox* mDelimiter = nullptr;
};
