#pragma once

#include "guests/clsCSVReader.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTableWidget;
class usrHyperlink;

// The mapping of a CSV file's columns to the system's fields: the file is chosen, its columns take the
// fields their names suggest, and each field's drop-down offers the columns no other field holds. Rows
// of fields without a column are grey. The mapping stands in IMPORT_FIELD. Children: "link" (choose the
// file), "lblFile", "linkDelimiter", "grid" with the drop-downs "usr_<row>", "cmdContinue", "cmdCancel".
class frmContactImportCSV : public QDialog {
    Q_OBJECT

public:
    explicit frmContactImportCSV(QWidget* parent = nullptr);

    // Reads the file with the delimiter in force and maps its columns as suggested; false, after the
    // message, when it can't be read.
    bool LoadFile(const QString& path);
    // Maps a field (by its row in the grid) to a column of the file, or to none for "".
    void Choose(int row, const QString& column);
    const clsImportTable& Table() const { return mTable; }
    QString FileName() const { return mFile; }

private:
    clsImportTable mTable;
    QString mFile;
    QLabel* mFileLabel = nullptr;
    usrHyperlink* mDelimiter = nullptr;
    QTableWidget* mGrid = nullptr;
    QPushButton* mContinue = nullptr;

    void PickFile();
    void EditDelimiter();
    void ShowDelimiter();
    void FillGrid();
    // The drop-down of a field's row: none, the columns no field holds, and its own.
    void ShowColumns(int row, const QString& current, const QStringList& free);
};
