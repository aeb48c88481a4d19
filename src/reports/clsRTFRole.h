#pragma once

#include "reports/clsRTFReport.h"

// For the DJ: who holds which role, with room to note how a name is said.
class clsRTFRole : public clsRTFReport {
public:
    clsRTFRole() : clsRTFReport("clsRTFRole") {}

protected:
    RtfMarkup Title() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
