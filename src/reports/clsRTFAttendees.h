#pragma once

#include "reports/clsRTFReport.h"

// The attendees of a filter with their meal and table; notes in brackets under the name.
class clsRTFAttendees : public clsRTFFilteredReport {
public:
    clsRTFAttendees() : clsRTFFilteredReport("clsRTFAttendees") {}
    // Leave the bride and the groom out (they attend their wedding, so the list has them by default).
    bool ExcludeBrideGroom = false;

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
