#pragma once

#include "reports/clsReportCatalogue.h"

#include <QDialog>
#include <QList>

class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTreeWidget;
class usrColor;
class usrHyperlink;

// "Print Reports": the one place where the user picks a report. The sections on the left, the filter
// rows of the chosen section with their counts on the right, the output options below; Run writes the
// report into the report folder and opens it, Preview and Print lay its pages out for the screen or a
// printer without writing a file. The form stays open for the next report.
class frmReports : public QDialog {
    Q_OBJECT
public:
    explicit frmReports(QWidget* parent = nullptr);

    // Set by the opener before the form shows: the section key and the filter key to select.
    int RPT_ROW = clsReportCatalogue::Contacts;
    int FilterIndex = 0;

    // What the output options say now.
    clsReportCatalogue::Choices Choices() const;
    int SectionKey() const;
    // The selected filter row (from 0), or -1.
    int FilterRowIndex() const;
    // The file the last run wrote; empty before.
    QString WrittenFile() const { return mWrittenFile; }

public slots:
    // The event of frmReportsFont: both links take the font.
    void mfrmReportsFont_FontChanged(const QString& rsFONT_NAME, const QString& rsFONT_SIZE);

protected:
    void showEvent(QShowEvent* event) override;
    void done(int result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* MakeGrids();
    QWidget* MakeReportType();
    QWidget* MakePaper();
    QWidget* MakeFont();
    QWidget* MakeColors();
    QWidget* MakeCommands();

    void FillReports();
    void FillFilters();
    void SelectOpening();
    void UpdateCommands();
    int CheckedReportType() const;
    void SetFontLinks(const QString& fontName, const QString& fontSize);
    void usrColor_ColorChanged(int index, const QColor& color);

    void LoadSettings();
    void SaveSettings() const;

    void linkFont_Click();
    void linkAction_Click();
    void cmdRun_Click();
    void cmdPreview_Click();
    void cmdPrint_Click();
    // Can the selected row's report be laid out in pages (a report class, no dialog to ask first)?
    bool CanLayOut() const;
    // The selected row's route with the output options taken into the settings.
    clsReportRoute TakeRoute() const;
    void RunRoute(const clsReportRoute& route);
    void SetStatus(const QString& text);

    bool mOpened = false;
    QList<clsReportCatalogue::FilterRow> mRows;
    QString mFontName;
    QString mFontSize;
    QString mWrittenFile;

    QTreeWidget* gridReport = nullptr;
    QTreeWidget* gridFilter = nullptr;
    QRadioButton* opt[4] = {}; // by clsReportCatalogue::ReportType
    QComboBox* cboPaperSize = nullptr;
    QComboBox* cboPaperOrientation = nullptr;
    usrHyperlink* linkFont = nullptr;
    usrHyperlink* linkFontSize = nullptr;
    usrColor* usrColors[3] = {}; // indexes 4, 5, 6
    usrHyperlink* linkAction = nullptr;
    QLabel* lblStatus = nullptr;
    QPushButton* cmdRun = nullptr;
    QPushButton* cmdPreview = nullptr;
    QPushButton* cmdPrint = nullptr;
    QPushButton* cmdCancel = nullptr;
};
