#pragma once

#include "reports/clsRTFReport.h"

// The tent cards with the table each stands on.
class clsRTFTentcard : public clsRTFReport {
public:
    clsRTFTentcard() : clsRTFReport("clsRTFTentcard") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
