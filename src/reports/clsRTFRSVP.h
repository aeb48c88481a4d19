#pragma once

#include "reports/clsRTFReport.h"

// The replies of a filter: received or not, how many of how many attend. An invitation still
// waiting is bold; one answered with nobody attending is struck through in grey.
class clsRTFRSVP : public clsRTFFilteredReport {
public:
    clsRTFRSVP() : clsRTFFilteredReport("clsRTFRSVP") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
