#pragma once

#include "reports/clsRTFReport.h"

// The gifts of a filter (all, thank-you notes sent or unsent, one event): whether the note went out,
// the giver, the envelope and its address, the gift and when it came; notes in italics under the gift.
class clsRTFGift : public clsRTFFilteredReport {
public:
    clsRTFGift() : clsRTFFilteredReport("clsRTFGift") {}

    // The filter of the gifts of one event, which the catalogue hands with its own condition.
    static constexpr int kEventFilter = 3;

protected:
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;
};
