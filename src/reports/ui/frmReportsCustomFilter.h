#pragma once

#include "reports/clsCustomFilter.h"

#include <QDialog>
#include <QList>

class QCheckBox;
class QLabel;
class QPushButton;

// The custom filter of Contacts, Invitations, RSVPs or Attendees: a row of check boxes for each group
// of fixed filters, the number of records the combination finds, and Run, which writes the section's
// report with that condition and opens it.
class frmReportsCustomFilter : public QDialog {
    Q_OBJECT
public:
    explicit frmReportsCustomFilter(int FormNumber, QWidget* parent = nullptr);

    const clsCustomFilter& Filter() const { return mFilter; }
    // The file the last run wrote; empty before a run.
    QString WrittenFile() const { return mWrittenFile; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildBoxes(class QGridLayout* grid);
    void chk_Click(int key, bool ticked);
    void UpdateCount();
    void cmdRun_Click();
    bool MoveFocus(QCheckBox* from, int key);

    clsCustomFilter mFilter;
    QString mWrittenFile;
    QList<QList<QCheckBox*>> mRows; // the boxes, one list per group
    QLabel* lblHeader = nullptr;
    QLabel* img = nullptr;
    QLabel* lblCount = nullptr;
    QPushButton* cmdRun = nullptr;
    QPushButton* cmdCancel = nullptr;
};
