#pragma once

#include <QDialog>
#include <functional>

class QRadioButton;
struct clsImportTable;

// Where an import of contacts starts: from a CSV file (through the mapping of its columns) or from vCard
// files, and the template of a CSV file to fill by hand. Children: "opt_0" (CSV), "opt_1" (vCard),
// "linkTemplate", "cmdContinue", "cmdCancel".
class frmContactImportDashboard : public QDialog {
    Q_OBJECT

public:
    explicit frmContactImportDashboard(QWidget* parent = nullptr);

    // Asks for a file to read; the file dialog unless a test put its own chooser in place.
    using FileChooser =
        std::function<QString(QWidget* parent, const QString& caption, const QString& filter)>;
    static QString ChooseFile(QWidget* parent, const QString& caption, const QString& filter);
    static void SetFileChooser(FileChooser chooser);

    // Goes the chosen way to the preview; true once contacts were imported (the dialog then closes).
    bool Continue();
    // Writes the template when it is missing and opens it.
    void OpenTemplate();

signals:
    void Imported();

private:
    QRadioButton* mCsv = nullptr;

    bool ContinueWithCSV();
    bool ContinueWithVCard();
    bool Preview(const clsImportTable& table, bool csvRoute);
};
