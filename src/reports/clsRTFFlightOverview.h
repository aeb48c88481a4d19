#pragma once

#include "reports/clsRTFReport.h"

// Every flight with its departure, arrival and the number of its passengers.
class clsRTFFlightOverview : public clsRTFReport {
public:
    clsRTFFlightOverview() : clsRTFReport("clsRTFFlightOverview") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
