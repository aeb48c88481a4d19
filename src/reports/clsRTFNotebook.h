#pragma once

#include "reports/clsRTFReport.h"

// Every note, newest first: a header row with its date and subject over its notes and the files
// assigned to it.
class clsRTFNotebook : public clsRTFReport {
public:
    clsRTFNotebook() : clsRTFReport("clsRTFNotebook") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
