#pragma once

#include <QIcon>
#include <QString>

// The pictures of the couple: "BRIDE1" to "BRIDE6" and "GROOM1" to "GROOM6". Each is a small
// portrait drawn as vectors whenever it is painted, so it is sharp at any size and screen scale. The
// options screen offers the first three of each side; the larger choice shows them all. Rows 1 and 2
// of VOWREN hold the number chosen for the bride and for the groom.
namespace modBrideGroomIcons {

// Pictures per side.
constexpr int kCount = 6;
// Pictures shown on the options screen itself.
constexpr int kOffered = 3;

// "BRIDE" or "GROOM" and the number; a number out of range is taken as 1.
QString Key(bool bride, int number);
// The picture of a key; an unknown key gives the first picture of its side (the groom's when the key
// names neither side).
QIcon Icon(const QString& key);
QIcon Icon(bool bride, int number);

// The number kept with the data for the bride (row 1) or the groom (row 2); 1 when it can't be read.
int StoredNumber(bool bride);
// The picture kept with the data for that side.
QIcon StoredIcon(bool bride);

} // namespace modBrideGroomIcons
