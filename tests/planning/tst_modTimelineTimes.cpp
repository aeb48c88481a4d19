#include "planning/modTimelineTimes.h"

#include <QtTest>

namespace T = modTimelineTimes;

namespace {

const QLocale kAmPm(QLocale::English, QLocale::UnitedStates);
const QLocale kTwentyFour(QLocale::German, QLocale::Germany);

QTime At(const char* text) {
    return QTime::fromString(QLatin1String(text), QStringLiteral("HH:mm"));
}

QDate Day(int day) {
    return QDate(2027, 6, day);
}

} // namespace

class tst_modTimelineTimes : public QObject {
    Q_OBJECT

private slots:
    void offsetLabels_data() {
        QTest::addColumn<int>("entry");
        QTest::addColumn<QString>("label");
        QTest::newRow("the start itself") << 1 << "0 minutes";
        QTest::newRow("half an hour") << 2 << "30 minutes";
        QTest::newRow("one hour, no plural") << 3 << "1 hour";
        QTest::newRow("an hour and a half") << 4 << "1.5 hours";
        QTest::newRow("two hours, no decimals") << 5 << "2 hours";
        QTest::newRow("the last entry") << 48 << "23.5 hours";
    }
    void offsetLabels() {
        QFETCH(int, entry);
        QFETCH(QString, label);
        QCOMPARE(T::OffsetLabel(entry), label);
    }

    // The lists follow the clock of the system: AM/PM or 24 hours.
    void theTwoLists_data() {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QTime>("endStart");
        QTest::addColumn<QStringList>("startPicks"); // entries 0, 1, 16 and 47
        QTest::addColumn<QStringList>("endPicks");   // entries 0, 1 and 3
        QTest::newRow("AM/PM") << kAmPm << At("23:30")
                               << QStringList{"12:00 AM", "12:30 AM", "8:00 AM", "11:30 PM"}
                               << QStringList{"11:30 PM (0 minutes)", "12:00 AM (30 minutes)",
                                              "1:00 AM (1.5 hours)"};
        QTest::newRow("24 hours") << kTwentyFour << At("08:00")
                                  << QStringList{"0:00", "0:30", "8:00", "23:30"}
                                  << QStringList{"8:00 (0 minutes)", "8:30 (30 minutes)", "9:30 (1.5 hours)"};
    }
    void theTwoLists() {
        QFETCH(QLocale, locale);
        QFETCH(QTime, endStart);
        QFETCH(QStringList, startPicks);
        QFETCH(QStringList, endPicks);
        const QStringList starts = T::StartTimes(locale);
        const QStringList ends = T::EndTimes(endStart, locale);
        QCOMPARE(starts.size(), 48);
        QCOMPARE(ends.size(), 48);
        QCOMPARE((QStringList{starts[0], starts[1], starts[16], starts[47]}), startPicks);
        QCOMPARE((QStringList{ends[0], ends[1], ends[3]}), endPicks);
        // Every entry of both lists reads back as the time it shows.
        for (const QString& entry : starts + ends)
            QVERIFY2(T::ReadTime(entry).isValid(), qPrintable(entry));
    }

    void typedTimes_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QTime>("time");
        QTest::newRow("list entry with its label") << "9:30 AM (1.5 hours)" << At("09:30");
        QTest::newRow("the first entry's fallback on a 24-hour system") << "8:00 AM" << At("08:00");
        QTest::newRow("24 hours") << "21:15" << At("21:15");
        QTest::newRow("lower case, no blank") << "4:05pm" << At("16:05");
        QTest::newRow("a word") << "noon" << QTime();
        QTest::newRow("no such hour") << "25:00" << QTime();
        QTest::newRow("afternoon past twelve") << "13:00 PM" << QTime();
        QTest::newRow("empty") << "" << QTime();
        QTest::newRow("only the label") << "(2 hours)" << QTime();
    }
    void typedTimes() {
        QFETCH(QString, text);
        QFETCH(QTime, time);
        QCOMPARE(T::ReadTime(text), time);
    }

    // After a change of a time, the end date follows the midnight rule.
    void endDateFollowsTheTimes_data() {
        QTest::addColumn<QDate>("startDate");
        QTest::addColumn<QDate>("endDate");
        QTest::addColumn<QTime>("start");
        QTest::addColumn<QTime>("end");
        QTest::addColumn<QDate>("result");
        QTest::newRow("11:30 PM plus 30 minutes crosses midnight")
            << Day(5) << Day(5) << At("23:30") << At("00:00") << Day(6);
        QTest::newRow("over midnight, already on the next day")
            << Day(5) << Day(6) << At("23:30") << At("00:15") << Day(6);
        QTest::newRow("back before midnight: the end date comes back")
            << Day(5) << Day(4) << At("09:00") << At("10:00") << Day(5);
        QTest::newRow("same time: nothing moves") << Day(5) << Day(5) << At("10:00") << At("10:00") << Day(5);
        QTest::newRow("a day-long entry keeps its later end date")
            << Day(5) << Day(7) << At("09:00") << At("17:00") << Day(7);
    }
    void endDateFollowsTheTimes() {
        QFETCH(QDate, startDate);
        QFETCH(QDate, endDate);
        QFETCH(QTime, start);
        QFETCH(QTime, end);
        QFETCH(QDate, result);
        QCOMPARE(T::EndDateAfterTimeChange(startDate, endDate, start, end), result);
    }

    void datesPullEachOther_data() {
        QTest::addColumn<bool>("startChanged");
        QTest::addColumn<QDate>("start");
        QTest::addColumn<QDate>("end");
        QTest::addColumn<QDate>("newStart");
        QTest::addColumn<QDate>("newEnd");
        QTest::newRow("start moved past the end pulls the end up")
            << true << Day(9) << Day(5) << Day(9) << Day(9);
        QTest::newRow("start moved before the end leaves it") << true << Day(3) << Day(5) << Day(3) << Day(5);
        QTest::newRow("end moved before the start pulls the start down")
            << false << Day(5) << Day(2) << Day(2) << Day(2);
        QTest::newRow("end moved later leaves the start") << false << Day(5) << Day(8) << Day(5) << Day(8);
    }
    void datesPullEachOther() {
        QFETCH(bool, startChanged);
        QFETCH(QDate, start);
        QFETCH(QDate, end);
        QFETCH(QDate, newStart);
        QFETCH(QDate, newEnd);
        const T::DatePair after =
            startChanged ? T::AfterStartDateChange({start, end}) : T::AfterEndDateChange({start, end});
        QCOMPARE(after, (T::DatePair{newStart, newEnd}));
        QCOMPARE(T::EndDateBeforeStart(after.Start, after.End), false);
    }

    void minutesCountForwardOverMidnight_data() {
        QTest::addColumn<QTime>("start");
        QTest::addColumn<QTime>("end");
        QTest::addColumn<int>("minutes");
        QTest::newRow("forward") << At("10:15") << At("11:45") << 90;
        QTest::newRow("over midnight") << At("23:30") << At("00:15") << 45;
        QTest::newRow("none") << At("10:00") << At("10:00") << 0;
    }
    void minutesCountForwardOverMidnight() {
        QFETCH(QTime, start);
        QFETCH(QTime, end);
        QFETCH(int, minutes);
        QCOMPARE(T::MinutesBetween(start, end), minutes);
    }
};

QTEST_GUILESS_MAIN(tst_modTimelineTimes)
#include "tst_modTimelineTimes.moc"
