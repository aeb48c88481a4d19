#pragma once

#include "reports/clsLabel.h"

#include <QList>
#include <QString>
#include <QStringList>

// The addresses a section offers for labels, and their placing on a sheet: shared by the label screen
// and the command line.
namespace modLabels {

// One address of the list: the record's key, the name the list shows, and the label's text.
struct Address {
    QString Key;
    QString Name;
    QString Text;            // lines joined by CR LF
    bool HasAddress = false; // more than the name
};

// Does the section print labels (contacts, invitations, attendees, gifts, vendors, the guest lists)?
bool SectionAllowsLabels(int sectionKey);
// "Contact", "Invitation", "Attendee", "Gift", "Vendor", "Widgets"; empty for another section.
QString Word(int sectionKey);
// "Print " + the word + " Labels".
QString Title(int sectionKey);

// The section's addresses in the order of its records. filterEnum and customWhere as the report screen
// hands them: a filter key, for gifts the event's condition, for the guest lists the event's id. Throws
// clsDbError when the database refuses the reading.
QList<Address> Addresses(int sectionKey, int filterEnum, const QString& customWhere);

// The texts placed in order from label `start` (from 1) on.
QList<clsLabel> PlaceFrom(int start, const QStringList& texts);

} // namespace modLabels
