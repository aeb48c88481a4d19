#pragma once

#include "reports/clsRTFReport.h"

// Every hotel with its address, contact, numbers and web site.
class clsRTFHotelOverview : public clsRTFReport {
public:
    clsRTFHotelOverview() : clsRTFReport("clsRTFHotelOverview") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
