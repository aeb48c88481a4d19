#pragma once

#include "reports/clsRTFReport.h"

// Every vendor under its category: name, address, contact, the numbers and e-mail, the web site, and the
// notes on a line over the whole width.
class clsRTFVendor : public clsRTFReport {
public:
    clsRTFVendor() : clsRTFReport("clsRTFVendor") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
