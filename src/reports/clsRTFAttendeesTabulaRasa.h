#pragma once

#include "reports/clsRTFReport.h"

// Every attendee in the columns the seating program Tabula Rasa imports; the invitation's RSVP ID
// groups the people who sit together.
class clsRTFAttendeesTabulaRasa : public clsRTFReport {
public:
    clsRTFAttendeesTabulaRasa() : clsRTFReport("clsRTFAttendeesTabulaRasa") {}

protected:
    QList<Column> Columns() const override;
    void PrintRows() override;
};
