#pragma once

#include <QDate>
#include <QDateTime>
#include <QLocale>
#include <QString>

// Small helpers that every part of the program calls: quoting, the program's date, time and percent
// formats, map addresses, key filters and window positions. Date and time text always uses English
// month names and AM/PM, whatever the locale, so that what is stored reads back the same everywhere.

// ---- Quoting ------------------------------------------------------------------------------------
// 'text' with every ' doubled; the second argument when the text is empty (nearly always "NULL").
QString QuoteSQL(const QString& text, const QString& ifEmpty = QStringLiteral("NULL"));
// A date literal for a condition: the date as quoted ISO text; the second argument when empty.
// Text that is no date is quoted as it stands, so the condition simply matches nothing.
QString QuoteDate(const QString& text, const QString& ifEmpty = QStringLiteral("NULL"));
// "text" with inner quotes doubled; the empty string when the text is empty.
QString QuoteCSV(const QString& text);

// ---- The clock ----------------------------------------------------------------------------------
// The present moment. Tests fix it with SetNowForTesting; an invalid value goes back to the real clock.
QDateTime Now();
void SetNowForTesting(const QDateTime& moment);

// ---- Fixed formats ------------------------------------------------------------------------------
inline constexpr const char* kDateFormat = "dd-mmm-yyyy";
inline constexpr const char* kTimeStampFormat = "yyyy-mm-dd_hhmmss";

// "h:mm ampm" where the locale's time format shows AM/PM, else "h:mm".
QString TimeFormat(const QLocale& locale = QLocale::system());
// "dd-mmm-yyyy" + " " + TimeFormat.
QString DateTimeFormat(const QLocale& locale = QLocale::system());
// The time picker's format: "h:mm tt" or "H:mm".
QString TimePickerFormat(const QLocale& locale = QLocale::system());
// Formats a moment with one of the program's formats: dd-mmm-yyyy, h:mm ampm, h:mm, H:mm, h:mm tt,
// yyyy-mm-dd_hhmmss, or a date format joined by a blank to a time format.
QString FormatDateTime(const QDateTime& moment, const QString& format);
// "05-Jun-2027"; the empty string for an invalid date.
QString FormatDate(const QDate& date);
// A time in TimeFormat: "3:05 PM" or "15:05".
QString FormatTime(const QTime& time, const QLocale& locale = QLocale::system());
// A time given as text, reformatted with TimeFormat; text that is no time comes back as it stands.
QString FormatTimeText(const QString& timeText, const QLocale& locale = QLocale::system());
// Now in the file-name format "yyyy-mm-dd_hhmmss".
QString TimeStamp();
QString ReportTimeStamp();

// Reads a date or date-and-time typed or stored in any of the program's forms: "05-Jun-2027",
// "5-jun-2027 3:05 PM", "2027-06-05", "2027-06-05 15:05:00", "2027-06-05T15:05". Invalid when none fits.
QDateTime ParseDateTimeText(const QString& text);
// Reads a time of day: "3:05 PM", "3:05pm", "15:05", "15:05:30". Invalid when none fits.
QTime ParseTimeText(const QString& text);
// The English three-letter month names.
QString MonthAbbreviation(int month);

// ---- Numbers and text ---------------------------------------------------------------------------
// Money in the locale's currency format; a locale without one (such as "C") borrows US English's.
QString CurrencyText(double amount);
// 100 * value / total with that many decimals and "%"; the empty string when total <= 0.
QString PercentText(double value, double total, int decimals, const QLocale& locale = QLocale::system());
// The trimmed part before the first delimiter, or the whole (trimmed) text when there is none.
QString TextBefore(const QString& text, const QString& delimiter);
// The trimmed part after the first delimiter's first character, or "" when there is no delimiter.
QString TextAfter(const QString& text, const QString& delimiter);
// Upper-cased, AM and PM removed, trimmed.
QString StripAmPm(const QString& timeText);
// Removes blanks and line ends from both ends.
QString TrimCrLf(const QString& text);
// Trims blanks, then drops every CR and LF at the front.
QString TrimLeadingCrLf(const QString& text);
// Removes blanks (only blanks) from both ends, as the program's text fields always have.
QString TrimBlanks(const QString& text);

// The key filter of number fields: digits and backspace pass; "%" and "-" pass when allowed and not
// in the text yet; "." and "," when allowed; every other key becomes 0.
int FilterNumericKey(const QString& text, int keyAscii, bool allowPercent, bool allowPoint, bool allowMinus,
                     bool allowComma);
// A typed lower-case letter becomes upper case; other keys pass.
int UpperCaseKey(int keyAscii);

// ---- Files, links, forms ------------------------------------------------------------------------
bool FileExists(const QString& path);
// The address of the map endpoint of a country (0 US, 1 Canada, 2 UK, 3 France, 4 Spain, 5 Germany,
// 6 Italy, 7 Australia, anything else US) with the address behind it, blanks and line ends as "+".
QString MapAddressURL(const QString& address, int countryIndex);
// The endpoint of a country; a setting "MapEndpoint<index>" below the root key, with a default.
QString MapEndpoint(int countryIndex);
QString DefaultMapEndpoint(int countryIndex);
// Opens "mailto:" + the address.
bool SendEmail(const QString& address);
// The key below which a form keeps its settings: the release key + "/" + the form's name.
QString FormRegistryKey(const QString& formName);

// A window's place in twips, and its state (0 normal, 1 minimised, 2 maximised).
struct FormPlacement {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    int WindowState = 0;
    bool operator==(const FormPlacement&) const = default;
};
// The saved place of a form when all four sizes are there and sensible (left and top >= -100, width
// and height >= 3000 twips); otherwise 500, 500 and the screen less 1000 each way, state normal.
FormPlacement FormPositionLoad(const QString& formName, int screenWidthTwips, int screenHeightTwips);
// Saves the place; a minimised window is written as normal, so it never comes back minimised.
void FormPositionSave(const QString& formName, const FormPlacement& placement);
