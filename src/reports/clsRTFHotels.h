#pragma once

#include "reports/clsRTFReport.h"

// Every attendee with a hotel, hotel by hotel: a group row with the hotel's name, address and numbers.
class clsRTFHotels : public clsRTFReport {
public:
    clsRTFHotels() : clsRTFReport("clsRTFHotels") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
