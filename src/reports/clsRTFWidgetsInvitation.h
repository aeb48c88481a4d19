#pragma once

#include "reports/clsRTFReport.h"

// The saved invitation wording (not what a screen shows), centred in one cell over the page's width.
class clsRTFWidgetsInvitation : public clsRTFReport {
public:
    clsRTFWidgetsInvitation() : clsRTFReport("clsRTFWidgetsInvitation") {}

protected:
    RtfMarkup Title() const override { return "Invitation Wording"; }
    QList<Column> Columns() const override { return {}; }
    void PrintRows() override;
};
