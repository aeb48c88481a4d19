#pragma once

#include "reports/clsSQLCatalogue.h"
#include "reports/ui/clsCatalogueDownload.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QTreeWidget;
class usrHyperlink;

// "Custom Reports from Quill Software": the ready queries of the catalogue, grouped by category, with
// their descriptions, and the SQL tab where the chosen query can be changed before it runs. Run writes
// the report in the output the report screen chose; a newer catalogue is downloaded on request, or on
// opening while "Download custom reports automatically" is ticked, without blocking the window.
// Children: "tabs", "grid", "txtDesc", "txtSQL", "cmdRun", "cmdCancel", "cmdDownload", "chkDownload",
// "lblStatus", "linkForum".
class frmReportsSQL : public QDialog {
    Q_OBJECT
public:
    // downloadOnOpen false: never fetch on opening, whatever the setting (pictures of the screen).
    explicit frmReportsSQL(QWidget* parent = nullptr, bool downloadOnOpen = true);

    // The transfer, so that its bounds can be set and its end awaited.
    clsCatalogueDownload& Download() { return mDownload; }
    // The report the last run wrote; empty when it wrote none.
    QString WrittenFile() const { return mWrittenFile; }

private:
    QWidget* MakeHeader();
    QWidget* MakeTabs();
    QWidget* MakeCommands();
    void FillGrid();
    const clsSQL_XML* SelectedItem() const;
    void grid_SelectionChanged();
    void cmdRun_Click();
    void cmdDownload_Click();
    void Download_Finished(bool ok, const QString& status);
    void SetStatus(const QString& text, const QString& details = QString());

    clsSQLCatalogue mCatalogue;
    clsCatalogueDownload mDownload;
    QString mWrittenFile;
    QTabWidget* tabs = nullptr;
    QTreeWidget* grid = nullptr;
    QPlainTextEdit* txtDesc = nullptr;
    QPlainTextEdit* txtSQL = nullptr;
    QPushButton* cmdRun = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdDownload = nullptr;
    QCheckBox* chkDownload = nullptr;
    QLabel* lblStatus = nullptr;
    usrHyperlink* linkForum = nullptr;
};
