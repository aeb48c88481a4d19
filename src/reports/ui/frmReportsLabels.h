#pragma once

#include "reports/clsLabel.h"
#include "reports/clsReportRoute.h"
#include "reports/modLabels.h"

#include <QDialog>
#include <QList>

class QCheckBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QTreeWidget;
class usrHyperlink;
class usrLabel;

// "Print Labels": the section's addresses on the left, a sheet of 30 labels on the right. Addresses are
// dragged onto labels (each further selected address takes the next label), a label is dragged to
// another label to move it and back onto the list to clear it; "Fill from label" places the selected
// addresses (all when none is selected) from a label on, so that a part-used sheet can be printed.
class frmReportsLabels : public QDialog {
    Q_OBJECT
public:
    frmReportsLabels(const clsReportRoute& route, QWidget* parent = nullptr);

    // As the report screen hands them.
    int RPT_ROW = 0;
    int FilterEnum = 0;
    QString FilterText;
    QString CustomWhere;

    // The sheet chosen (clsLabelSheet::Kind).
    int Sheet() const;
    // The filled labels, by number.
    QList<clsLabel> PlacedLabels() const;
    // The file the last print wrote; empty when none.
    QString LastFile() const { return mLastFile; }

    // What a drop and the commands do, also from the keyboard.
    // The selected addresses from label `number` on, one a label, up to the last label.
    void DropAddresses(int number);
    // A label to another place; a label standing there takes the emptied place.
    void MoveLabel(int from, int to);
    void ClearLabel(int number);
    // The selected addresses (all when none is selected) from label `start` on.
    void FillFrom(int start);
    // The selected addresses into the free labels, in order.
    void FillFreeLabels();
    void linkSelectAll_Click();
    void linkClearAll_Click();
    void cmdRun_Click();

protected:
    void done(int result) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* MakeList();
    QWidget* MakeSheet();
    QWidget* MakeOptions();
    QWidget* MakeCommands();
    void FillList();
    void SetSheet(int sheet);
    void SetFontLinks(const QString& fontName, const QString& fontSize);
    void linkFont_Click();
    void SelectLabel(int number);
    QStringList SelectedTexts(bool allWhenNone) const;
    void PlaceFrom(int number, const QStringList& texts);
    void UpdateCounts();
    void LoadSettings();
    void SaveSettings() const;

    QList<modLabels::Address> mAddresses;
    QList<usrLabel*> mLabels;
    QTreeWidget* lvw = nullptr;
    QLabel* lblSelected = nullptr;
    QLabel* lblCount = nullptr;
    QLabel* lblPaper = nullptr;
    QLabel* lblLabelSize = nullptr;
    QLabel* imgSpillOver = nullptr;
    QRadioButton* opt[2] = {};
    usrHyperlink* linkFont = nullptr;
    usrHyperlink* linkFontSize = nullptr;
    QSpinBox* spnStart = nullptr;
    QPushButton* cmdRun = nullptr;
    QCheckBox* chkPdf = nullptr; // the sheet as PDF instead of RTF
    QGridLayout* mSheetGrid = nullptr;
    QString mFontName;
    QString mFontSize;
    QString mLastFile;
};
