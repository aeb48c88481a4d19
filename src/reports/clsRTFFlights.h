#pragma once

#include "reports/clsRTFReport.h"

// Every attendee with a flight, flight by flight: a group row with the flight's name, departure and arrival.
class clsRTFFlights : public clsRTFReport {
public:
    clsRTFFlights() : clsRTFReport("clsRTFFlights") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
