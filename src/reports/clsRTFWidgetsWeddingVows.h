#pragma once

#include "reports/clsRTFReport.h"

// The couple's vows: both (key 2, side by side in two cells of one row), the bride's (3) or the
// groom's (4), each under a header cell with the partner's name.
class clsRTFWidgetsWeddingVows : public clsRTFReport {
public:
    clsRTFWidgetsWeddingVows() : clsRTFReport("clsRTFWidgetsWeddingVows") {}

    // The catalogue's key of the form, as text: "2", "3" or "4".
    QString ReportIndex = QStringLiteral("2");

protected:
    RtfMarkup Title() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;

private:
    // The wording rows printed: 2 the bride's, 3 the groom's.
    QList<int> Rows() const;
};
