#include "planning/modTimelineTimes.h"

#include "core/modGeneral.h"

namespace modTimelineTimes {

QString OffsetLabel(int entry) {
    if (entry <= 1)
        return QStringLiteral("0 minutes");
    if (entry == 2)
        return QStringLiteral("30 minutes");
    if (entry == 3)
        return QStringLiteral("1 hour");
    const int halfHours = entry - 1;
    const QString hours = halfHours % 2 == 0 ? QString::number(halfHours / 2)
                                             : QString::number(halfHours / 2) + QStringLiteral(".5");
    return hours + QStringLiteral(" hours");
}

QStringList StartTimes(const QLocale& locale) {
    QStringList times;
    for (int i = 0; i < kListLength; ++i)
        times << FormatTime(QTime(0, 0).addSecs(i * kStepMinutes * 60), locale);
    return times;
}

QStringList EndTimes(const QTime& start, const QLocale& locale) {
    QStringList times;
    for (int i = 0; i < kListLength; ++i)
        times << FormatTime(start.addSecs(i * kStepMinutes * 60), locale) + QStringLiteral(" (") +
                     OffsetLabel(i + 1) + QLatin1Char(')');
    return times;
}

QTime ReadTime(const QString& text) {
    return ParseTimeText(TextBefore(text, QStringLiteral("(")));
}

int MinutesBetween(const QTime& start, const QTime& end) {
    return ((start.secsTo(end) / 60) % 1440 + 1440) % 1440;
}

QDate EndDateAfterTimeChange(const QDate& startDate, const QDate& endDate, const QTime& start,
                             const QTime& end) {
    if (end < start && startDate == endDate)
        return startDate.addDays(1);
    if (end >= start && endDate < startDate)
        return startDate;
    return endDate;
}

DatePair AfterStartDateChange(const DatePair& dates) {
    return {dates.Start, dates.Start > dates.End ? dates.Start : dates.End};
}

DatePair AfterEndDateChange(const DatePair& dates) {
    return {dates.End < dates.Start ? dates.End : dates.Start, dates.End};
}

bool EndDateBeforeStart(const QDate& startDate, const QDate& endDate) {
    return endDate < startDate;
}

} // namespace modTimelineTimes
