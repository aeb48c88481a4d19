#pragma once

#include <QString>
#include <QtGlobal>

// A complete, believable wedding to try the program with or to measure it on: the couple, households
// of every kind with invitations, replies, meals, seating, travel, the budget, the checklist, events
// with their schedules, gifts, notes and songs. The same seed gives the same wedding, to the byte.
namespace modDemoWedding {

// The wedding day of every demo: Saturday 12-Jun-2027, 3:30 PM.
QString WeddingDateTime();

} // namespace modDemoWedding

// Fills the open database with `guests` people besides the couple, all in one transaction: a failure
// leaves the database as it was. Refused (false, with the reason in message) when the database holds
// people beyond the couple already. On success message holds a one-line summary.
bool FillDemoWedding(int guests = 150, quint32 seed = 1, QString* message = nullptr);
