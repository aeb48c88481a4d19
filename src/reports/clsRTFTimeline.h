#pragma once

#include "reports/clsRTFReport.h"

// The timeline of one event (FilterEnum its EVENT_ID) or of all (0), a group row for each day of each
// event; notes under the description.
class clsRTFTimeline : public clsRTFFilteredReport {
public:
    clsRTFTimeline() : clsRTFFilteredReport("clsRTFTimeline") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;

private:
    QString EventId() const { return FilterEnum > 0 ? QString::number(FilterEnum) : QString(); }
};
