#pragma once

#include <QMap>
#include <QString>

class clsCONTACT;

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

// What the first start learns, written as one piece of work: the couple, the wedding day at `when`
// ("12-Jun-2027 3:30 PM", with the ceremony on its timeline), the estimate of each budget category by
// its key, and every expense due on the wedding day. All of it is kept, or none; the couple and the
// wedding day in memory follow the rows either way. Throws clsDbError.
void SaveFirstStart(const clsCONTACT& bride, const clsCONTACT& groom, const QString& when,
                    const QMap<QString, double>& estimates);

} // namespace modWedding
