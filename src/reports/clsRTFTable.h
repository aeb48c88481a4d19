#pragma once

#include "reports/clsRTFReport.h"

// The seating chart: the seated people table by table.
class clsRTFTable : public clsRTFReport {
public:
    clsRTFTable() : clsRTFReport("clsRTFTable") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
