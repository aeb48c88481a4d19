#include "reports/clsRTFCalendar.h"

#include "core/modGeneral.h"
#include "planning/clsEVENT.h"
#include "platform/clsRegistry.h"
#include "reports/clsReportCatalogue.h"

#include <QHash>
#include <QLocale>

namespace {

QString MonthName(int month) {
    return QLocale(QLocale::English).standaloneMonthName(month);
}

QString WeekdayName(int sundayFirst) {
    // Qt counts Monday as 1 and Sunday as 7.
    return QLocale(QLocale::English).dayName(sundayFirst == 0 ? 7 : sundayFirst);
}

// The names of the events of each day of the range.
QHash<QDate, QStringList> EventsByDay(const QDate& first, const QDate& last) {
    QHash<QDate, QStringList> days;
    for (const clsEVENT& event : clsEVENT().OpenRecords()) {
        const QDate day = ParseDateTimeText(event.EVENT_DT).date();
        if (day.isValid() && day >= first && day <= last)
            days[day] << event.EVENT_TX;
    }
    return days;
}

RtfMarkup DayText(const QStringList& events) {
    RtfMarkup text;
    for (qsizetype i = 0; i < std::max<qsizetype>(events.size(), clsRTFCalendar::kEventLines); ++i) {
        if (i > 0)
            text += RtfMarkup::LineBreak();
        if (i < events.size())
            text += RtfMarkup(events[i]);
    }
    return text;
}

} // namespace

QList<QList<int>> clsRTFCalendar::MonthWeeks(int year, int month) {
    const QDate first(year, month, 1);
    const int offset = first.dayOfWeek() % 7; // Sunday 0 ... Saturday 6
    QList<QList<int>> weeks;
    for (int start = 1 - offset; start <= first.daysInMonth(); start += 7) {
        QList<int> week;
        for (int day = start; day < start + 7; ++day)
            week << (day >= 1 && day <= first.daysInMonth() ? day : 0);
        weeks << week;
    }
    return weeks;
}

QString clsCalendarMonths::RangeText() const {
    return FromDate().toString(QStringLiteral("yyyy-MM")) + QLatin1Char(':') +
           ToDate().toString(QStringLiteral("yyyy-MM"));
}

bool clsCalendarMonths::SetRange(const QString& text) {
    const QStringList parts = text.split(QLatin1Char(':'));
    if (parts.size() != 2)
        return false;
    const QDate from =
        QDate::fromString(parts[0].trimmed() + QStringLiteral("-01"), QStringLiteral("yyyy-MM-dd"));
    const QDate to =
        QDate::fromString(parts[1].trimmed() + QStringLiteral("-01"), QStringLiteral("yyyy-MM-dd"));
    if (!from.isValid() || !to.isValid())
        return false;
    FromMonthNumber = from.month();
    FromYearNumber = from.year();
    ToMonthNumber = to.month();
    ToYearNumber = to.year();
    return true;
}

QString clsCalendarMonths::SettingsKey() {
    return FormRegistryKey(QStringLiteral("frmReportEventDates"));
}

void clsCalendarMonths::TakeStoredRange() {
    const QDate today = Now().date();
    QDate wedding = ParseDateTimeText(gWeddingEvent().EVENT_DT).date();
    if (!wedding.isValid() || wedding < today)
        wedding = today;
    const auto stored = [](const char* name, int fallback) {
        return gRegistry().GetSetting(SettingsKey(), QLatin1String(name), QString::number(fallback)).toInt();
    };
    FromMonthNumber = stored("FromMonth", today.month());
    FromYearNumber = stored("FromYear", today.year());
    ToMonthNumber = stored("ToMonth", wedding.month());
    ToYearNumber = stored("ToYear", wedding.year());
}

void clsCalendarMonths::StoreRange() const {
    clsRegistryStore& store = gRegistry();
    store.SaveSetting(SettingsKey(), QStringLiteral("FromMonth"), QString::number(FromMonthNumber));
    store.SaveSetting(SettingsKey(), QStringLiteral("FromYear"), QString::number(FromYearNumber));
    store.SaveSetting(SettingsKey(), QStringLiteral("ToMonth"), QString::number(ToMonthNumber));
    store.SaveSetting(SettingsKey(), QStringLiteral("ToYear"), QString::number(ToYearNumber));
}

QString clsRTFCalendar::Build() {
    RTF.SetGlobalSettings();
    RTF.FILE_NAME =
        clsReportCatalogue::ReportFileName(clsReportCatalogue::FilePrefix(QStringLiteral("clsRTFCalendar")));
    RTF.PRINT_HEADER_DATE = false;
    RTF.PRINT_FOOTER = false;
    RTF.MARGIN_TOP = 0.5F;
    RTF.MARGIN_BOTTOM = 0.4F;
    if (!RTF.RTFOpen())
        return {};
    bool first = true;
    for (QDate month = FromDate(); month.isValid() && month <= ToDate(); month = month.addMonths(1)) {
        if (!first)
            RTF.PrintRaw(RtfMarkup::Control("\\pard\\page\\par"));
        first = false;
        PrintMonth(month.year(), month.month());
    }
    return RTF.RTFClose() ? RTF.FULL_FILE_NAME() : QString();
}

void clsRTFCalendar::PrintMonth(int year, int month) {
    const bool rtf = RTF.USE_RTF;
    const int width = RTF.TABLE_WIDTH();
    const auto edge = [rtf, width](int column) { return rtf ? width * (column + 1) / 7 : 0; };
    RTF.ResetCells();
    RTF.FontSize(QStringLiteral("12"));
    RTF.AddCell(rtf ? width : 0, MonthName(month) + QLatin1Char(' ') + QString::number(year),
                clsRTFCell::AlignLeft, clsRTFCell::AlignTop, clsRTFCell::NoBorder, 0, 0, true);
    RTF.PrintCells();
    RTF.FontSize(QStringLiteral("9"));

    RTF.ResetCells();
    for (int day = 0; day < 7; ++day)
        RTF.AddCell(edge(day), WeekdayName(day), clsRTFCell::AlignCenter);
    RTF.SetCellsCELL_BORDER(clsRTFCell::BorderBox);
    RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::HeaderFill);
    RTF.SetCellsBOLD(true);
    RTF.PrintCells();
    RTF.SetCellsCELL_BACKCOLOR(clsRTFMasterTemp::NoColor);

    const QHash<QDate, QStringList> events =
        EventsByDay(QDate(year, month, 1), QDate(year, month, 1).addMonths(1).addDays(-1));
    for (const QList<int>& week : MonthWeeks(year, month)) {
        for (int i = 0; i < 7; ++i) {
            clsRTFCell& cell = RTF.RTFCells[i];
            cell.CELL_TX = week[i] > 0 ? RtfMarkup::Figure(QString::number(week[i])) : RtfMarkup();
            cell.CELL_HORIZONTAL_ALIGNMENT = clsRTFCell::AlignRight;
            cell.CELL_BORDER = week[i] > 0 ? clsRTFCell::BorderOpenBottom : clsRTFCell::NoBorder;
        }
        RTF.PrintCells();
        for (int i = 0; i < 7; ++i) {
            clsRTFCell& cell = RTF.RTFCells[i];
            cell.CELL_TX = week[i] > 0 ? DayText(events.value(QDate(year, month, week[i]))) : DayText({});
            cell.CELL_HORIZONTAL_ALIGNMENT = clsRTFCell::AlignLeft;
            cell.CELL_BORDER = week[i] > 0 ? clsRTFCell::BorderOpenTop : clsRTFCell::NoBorder;
        }
        RTF.PrintCells();
    }
}
