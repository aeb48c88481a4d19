#pragma once

#include "reports/clsRTFReport.h"

// For the caterer: how many attendees chose each meal, at what price, and how many have not chosen.
class clsRTFMeal : public clsRTFReport {
public:
    clsRTFMeal() : clsRTFReport("clsRTFMeal") {}

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;

private:
    void MealRow(const RtfMarkup& meal, long count, const QString& price, const QString& cost);
};
