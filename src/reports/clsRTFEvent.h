#pragma once

#include "reports/clsRTFReport.h"

// Every event by date, with its address, contact, numbers and web site; notes under the name.
class clsRTFEvent : public clsRTFReport {
public:
    clsRTFEvent() : clsRTFReport("clsRTFEvent") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
