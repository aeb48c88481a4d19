#pragma once

#include "reports/RtfMarkup.h"

#include <QString>

// What the hotel and flight reports print alike.
namespace RtfTravel {

// The name in bold, and under it the notes in italics when there are any.
RtfMarkup NameAndNotes(const QString& name, const QString& notes);
// "p. " and the phone, "f. " and the fax, the e-mail: each on a line of its own when present.
QString Numbers(const QString& phone, const QString& fax, const QString& email = {});
// The airport, and under it the date and time.
QString Airport(const QString& airport, const QString& when);

} // namespace RtfTravel
