#pragma once

#include "reports/clsRTFReport.h"

// The invitations of a filter with their envelope texts, for checking before they are addressed; in
// CSV with the lines of the outer envelope one by one, ready for a mail merge.
class clsRTFInvitation : public clsRTFFilteredReport {
public:
    clsRTFInvitation() : clsRTFFilteredReport("clsRTFInvitation") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
