#pragma once

#include "seating/clsSeater.h"
#include "seating/modSeating.h"

// Seating everyone at once by the couple's rules: the seater's input read from the database, and its
// chart written back. The chart is only a proposal until Apply writes it, in one transaction.
namespace modAutoSeat {

// "There are no tables to seat the guests at. ..."
QString NoTablesMessage();
// The attendees (bride and groom included), every table, and the rules between attendees; a rule that
// names someone who is not attending is listed among the ignored. Throws clsDbError.
SeatingInstance ReadInstance();
// Runs the seater on the wedding as it stands. No tables throws clsDbError with NoTablesMessage.
SeatingChart Propose(const SeaterOptions& options);
// The chart as the guests sit now, by the same score and the same hard rules.
SeatingChart MeasureCurrent();
// The seats the chart changes: where those people sit now, and where the chart puts them.
struct SeatChanges {
    modSeating::Seats Before, After;
};
SeatChanges Changes(const SeatingChart& chart);
// Writes every attendee's seat of the chart in one transaction; gives where the people who move sat
// before, for undoing. Throws clsDbError (the file in use, say), and then nothing is written.
modSeating::Seats Apply(const SeatingChart& chart);

} // namespace modAutoSeat
