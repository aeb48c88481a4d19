#pragma once

#include "reports/clsRTFReport.h"

// The checklist: by time frame (or, for the key 4, all tasks by due date), a completed task struck
// through in grey, its notes in italics under its name.
class clsRTFTask : public clsRTFFilteredReport {
public:
    clsRTFTask() : clsRTFFilteredReport("clsRTFTask") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
