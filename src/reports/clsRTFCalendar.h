#pragma once

#include "reports/clsRTFMaster.h"

#include <QDate>
#include <QList>
#include <QString>

// The months a calendar prints, from the first to the last.
class clsCalendarMonths {
public:
    int FromMonthNumber = 1;
    int FromYearNumber = 2000;
    int ToMonthNumber = 1;
    int ToYearNumber = 2000;

    // The range as a route carries it ("2027-01:2027-06"), and back; false for a text that is no range.
    QString RangeText() const;
    bool SetRange(const QString& text);
    // The first day of the first month and of the last month.
    QDate FromDate() const { return QDate(FromYearNumber, FromMonthNumber, 1); }
    QDate ToDate() const { return QDate(ToYearNumber, ToMonthNumber, 1); }
    // The range the month dialog kept in the settings ("FromMonth", "FromYear", "ToMonth", "ToYear");
    // from this month to the wedding's month when nothing was kept.
    void TakeStoredRange();
    void StoreRange() const;
    static QString SettingsKey();
};

// Month sheets of the wedding calendar: for each month of a range a heading, the weekdays from Sunday and
// a grid of weeks with the events of each day in its cell (by their date alone; the time is not printed).
class clsRTFCalendar : public clsCalendarMonths {
public:
    clsRTFMaster RTF;

    // Writes the file; its full name, or empty when it could not be written (the user has been told why).
    // Throws clsDbError when the database refuses the reading.
    QString Build();
    bool Show() { return RTF.Show(); }

    // The weeks of a month, Sunday first: each day's number, 0 for a cell outside the month. A month has
    // as many weeks as it reaches into, four to six.
    static QList<QList<int>> MonthWeeks(int year, int month);
    // A cell's text never takes fewer lines than this, so that every week keeps its height.
    static constexpr int kEventLines = 3;

private:
    void PrintMonth(int year, int month);
};
