#pragma once

#include "core/clsMoney.h"
#include "reports/clsRTFReport.h"

#include <QDateTime>

// One page of figures about the wedding: a label and a count a line, grouped under bold heads. Every
// figure is one of the application's totals.
class clsRTFStatistics : public clsRTFReport {
public:
    clsRTFStatistics() : clsRTFReport("clsRTFStatistics") {}


protected:
    RtfMarkup Title() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;

private:
    enum LineKind { Plain, Head, Child };
    void Line(LineKind kind, const QString& label, const QString& figure);
    void MoneyLine(const QString& label, clsMoney amount, bool redWhenNegative = false);
};
