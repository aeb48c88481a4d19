#pragma once

#include "reports/clsRTFReport.h"

// The guest list of an event other than the wedding day, for the party's hosts: each invitation or
// contact with address and means of contact, and two empty boxes to tick by hand.
class clsRTFWidgetInvite : public clsRTFReport {
public:
    clsRTFWidgetInvite() : clsRTFReport("clsRTFWidgetInvite") {}

    QString EVENT_ID;

protected:
    QString FilePrefix() const override;
    RtfMarkup Title() const override;
    RtfMarkup Statistics() const override;
    QList<Column> Columns() const override;
    void PrintRows() override;

private:
    QString EventName() const;
};
