#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <QTime>

// The times of a timeline entry as its editor offers them: two lists of half hours, the end list
// labelled with the offset from the start ("1.5 hours"), and the rules that keep the two dates in step
// when an entry runs over midnight.
namespace modTimelineTimes {

inline constexpr int kListLength = 48;
inline constexpr int kStepMinutes = 30;
// The duration a new entry starts with.
inline constexpr int kDefaultDurationMinutes = 30;

// "0 minutes", "30 minutes", "1 hour", then "1.5 hours", "2 hours" ...; entry counts from 1.
QString OffsetLabel(int entry);
// The start list: 48 half hours from midnight, in the program's time format.
QStringList StartTimes(const QLocale& locale = QLocale::system());
// The end list: 48 half hours from the start, each followed by its offset, "9:30 AM (1.5 hours)".
QStringList EndTimes(const QTime& start, const QLocale& locale = QLocale::system());
// The time of a list entry or of a typed text; the offset label is cut off first. Invalid when the text
// is no time.
QTime ReadTime(const QString& text);
// Minutes forward on the clock from one time to the other (0 to 1439).
int MinutesBetween(const QTime& start, const QTime& end);

// Where the end date goes after a change of either time: a day after the start date when the entry now
// runs over midnight and both dates were the same; back to the start date when it doesn't and the end
// date lay before the start; otherwise it stays.
QDate EndDateAfterTimeChange(const QDate& startDate, const QDate& endDate, const QTime& start,
                             const QTime& end);

// A start date moved past the end date takes the end date along; an end date moved before the start date
// takes the start date along. The dates that result.
struct DatePair {
    QDate Start;
    QDate End;
    bool operator==(const DatePair&) const = default;
};
DatePair AfterStartDateChange(const DatePair& dates);
DatePair AfterEndDateChange(const DatePair& dates);

// The one refusal of a save: the end date (compared as calendar days) lies before the start date.
bool EndDateBeforeStart(const QDate& startDate, const QDate& endDate);
inline QString EndBeforeStartMessage() {
    return QStringLiteral("The end date you entered occurs before the start date.");
}

} // namespace modTimelineTimes
