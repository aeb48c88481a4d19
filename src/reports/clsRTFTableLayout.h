#pragma once

#include "reports/clsRTFReport.h"

// One line a table: number, label, seats and seats still free.
class clsRTFTableLayout : public clsRTFReport {
public:
    clsRTFTableLayout() : clsRTFReport("clsRTFTableLayout") {}

protected:
    RtfMarkup Title() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
