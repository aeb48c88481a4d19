#pragma once

#include "reports/clsRTFCalendar.h"

#include <QDialog>

class QComboBox;
class QPushButton;

// "Select months to print": the first and the last month of the calendar report, kept in the settings.
// Children: "cboFromMonth", "cboFromYear", "cboToMonth", "cboToYear", "cmdOK", "cmdCancel".
class frmReportEventDates : public QDialog {
    Q_OBJECT
public:
    explicit frmReportEventDates(QWidget* parent = nullptr);

    // True once OK closed the dialog on a good range.
    bool Continue() const { return mContinue; }
    int FromMonthNumber() const;
    int FromYearNumber() const;
    int ToMonthNumber() const;
    int ToYearNumber() const;
    // The four numbers as the calendar takes them.
    clsCalendarMonths Range() const;

private:
    void cmdOK_Click();

    QComboBox* cboFromMonth = nullptr;
    QComboBox* cboFromYear = nullptr;
    QComboBox* cboToMonth = nullptr;
    QComboBox* cboToYear = nullptr;
    bool mContinue = false;
};
