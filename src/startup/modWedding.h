#pragma once

#include <QString>

// The couple and the wedding day as the frame shows them, from the global records of the start.
namespace modWedding {

// Both first and last names of the couple and the wedding date are filled.
bool CoreInformationGathered();
// "Emily Rose & Daniel James's Wedding": the first and middle names.
QString WeddingCaption();
// "Emily Carter and Daniel Whitaker": the first and last names.
QString CoupleNames();
// The wedding day's date and time as stored; empty while it is not known.
QString WeddingDateTime();

} // namespace modWedding
