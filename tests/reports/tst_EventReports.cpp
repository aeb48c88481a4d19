#include "RtfTestTools.h"
#include "planning/PlanningTestTools.h"
#include "planning/clsTIMELINE.h"
#include "reports/GuestReportTestData.h"
#include "reports/clsRTFCalendar.h"
#include "reports/clsRTFMasterTemp.h"
#include "reports/clsReportCatalogue.h"
#include "reports/modReportRegistry.h"
#include "reports/modReportRunner.h"

#include <QtTest>
#include <memory>

using namespace RtfTestTools;

namespace {

const QString kNasty =
    QStringLiteral("Toast {\\b0 \"Cheers\"}, \\par\r\nΧαίρετε 乾杯 🥂 <script>x()</script>");

// The report of a section's row written in one dialect; the records of a CSV file.
QString WriteReport(int section, int filterKey, bool rtf, const QString& argument = QString()) {
    const QList<clsReportCatalogue::FilterRow> rows = clsReportCatalogue::FilterRows(section);
    clsReportRoute route =
        clsReportCatalogue::Route(section, rows, clsReportCatalogue::FilterRowIndex(rows, filterKey));
    route.Argument = argument;
    modReportRunner::Output output;
    output.UseRtf = rtf;
    return modReportRunner::Write(route, output);
}

QList<QStringList> CsvRecords(const QString& path) {
    QString text = QString::fromUtf8(FileBytes(path));
    if (text.startsWith(QChar(0xFEFF)))
        text.remove(0, 1);
    QString error;
    const QList<QStringList> records = ParseCsvStrict(text, &error);
    if (!error.isEmpty())
        qWarning("%s", qPrintable(error));
    return records;
}

QString Plain(const QString& text) {
    return QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

} // namespace

class tst_EventReports : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

private slots:
    void init() {
        db = std::make_unique<PlanningDatabase>();
        gApp().MakeReportPath();
        gRTFMasterTemp() = clsRTFMasterTemp();
        RegisterReportClasses();
        TestDatabase::Exec(QStringLiteral("DELETE FROM TIMELINE"));
        TestDatabase::Exec(QStringLiteral("DELETE FROM EVENT"));
    }
    void cleanup() { db.reset(); }

    void weeksOfAMonth_data() {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("weeks");
        QTest::addColumn<QList<int>>("firstWeek");
        QTest::addColumn<QList<int>>("lastWeek");
        QTest::newRow("begins on Saturday, 31 days: six weeks")
            << 2027 << 5 << 6 << QList<int>{0, 0, 0, 0, 0, 0, 1} << QList<int>{30, 31, 0, 0, 0, 0, 0};
        QTest::newRow("February from Sunday: four weeks")
            << 2026 << 2 << 4 << QList<int>{1, 2, 3, 4, 5, 6, 7} << QList<int>{22, 23, 24, 25, 26, 27, 28};
        QTest::newRow("leap February from Thursday")
            << 2024 << 2 << 5 << QList<int>{0, 0, 0, 0, 1, 2, 3} << QList<int>{25, 26, 27, 28, 29, 0, 0};
        QTest::newRow("ends on Saturday")
            << 2027 << 7 << 5 << QList<int>{0, 0, 0, 0, 1, 2, 3} << QList<int>{25, 26, 27, 28, 29, 30, 31};
    }
    void weeksOfAMonth() {
        QFETCH(int, year);
        QFETCH(int, month);
        QFETCH(int, weeks);
        QFETCH(QList<int>, firstWeek);
        QFETCH(QList<int>, lastWeek);
        const QList<QList<int>> found = clsRTFCalendar::MonthWeeks(year, month);
        QCOMPARE(found.size(), weeks);
        QCOMPARE(found.first(), firstWeek);
        QCOMPARE(found.last(), lastWeek);
    }

    // Each event stands in the cell of its day, whatever its hour; a cell keeps three lines at least.
    void eventsFillTheCellsOfTheirDays_data() {
        QTest::addColumn<int>("events");
        QTest::addColumn<int>("lines");
        QTest::newRow("one event, filled up to three lines") << 1 << 3;
        QTest::newRow("three need no filling") << 3 << 3;
        QTest::newRow("a fourth makes the cell taller") << 4 << 4;
    }
    void eventsFillTheCellsOfTheirDays() {
        QFETCH(int, events);
        QFETCH(int, lines);
        QStringList names;
        for (int i = 0; i < events; ++i) {
            names << QStringLiteral("Party %1").arg(i + 1);
            AddTestEvent(QString::number(i + 1), names.last(),
                         QStringLiteral("2027-06-05 %1:15:00").arg(8 + 5 * i));
        }
        AddTestEvent(QStringLiteral("9"), QStringLiteral("Next month"),
                     QStringLiteral("2027-07-05 10:00:00"));
        const QList<QStringList> records =
            CsvRecords(WriteReport(clsReportCatalogue::Events, 2, false, QStringLiteral("2027-06:2027-06")));
        QCOMPARE(records.value(0).value(0), QStringLiteral("June 2027"));
        QCOMPARE(records.value(1).value(0), QStringLiteral("Sunday"));
        // June 2027 begins on a Tuesday: the first week's dates, then its events.
        QCOMPARE(records.value(2), (QStringList{"", "", "1", "2", "3", "4", "5"}));
        const QStringList cell = records.value(3).value(6).split(QStringLiteral("\r\n"));
        QCOMPARE(cell.size(), lines);
        QCOMPARE(cell.mid(0, events), names);
        // Five weeks of two rows each after the heading and the weekdays; July stays out.
        QCOMPARE(records.size(), 2 + 5 * 2);
        for (const QStringList& record : records)
            QVERIFY(!record.join(QLatin1Char('|')).contains(QStringLiteral("Next month")));
    }

    void aRangePrintsEachMonthOnce_data() {
        QTest::addColumn<QString>("range");
        QTest::addColumn<QStringList>("headings");
        QTest::newRow("one month") << "2027-06:2027-06" << QStringList{"June 2027"};
        QTest::newRow("over the new year")
            << "2026-12:2027-02" << QStringList{"December 2026", "January 2027", "February 2027"};
    }
    void aRangePrintsEachMonthOnce() {
        QFETCH(QString, range);
        QFETCH(QStringList, headings);
        QStringList found;
        for (const QStringList& record : CsvRecords(WriteReport(clsReportCatalogue::Events, 2, false, range)))
            if (record.size() == 1 && !record.first().isEmpty())
                found << record.first();
        QCOMPARE(found, headings);
        // The RTF sheets are separate pages.
        const QString rtf =
            QString::fromUtf8(FileBytes(WriteReport(clsReportCatalogue::Events, 2, true, range)));
        QCOMPARE(int(rtf.count(QStringLiteral("\\page"))), int(headings.size()) - 1);
    }

    // Whatever the user typed prints as itself, in both dialects.
    void typedTextSurvivesTheReports_data() {
        QTest::addColumn<int>("section");
        QTest::addColumn<int>("filter");
        QTest::newRow("events") << int(clsReportCatalogue::Events) << 1;
        QTest::newRow("timeline of one event") << int(clsReportCatalogue::Timelines) << 2;
    }
    void typedTextSurvivesTheReports() {
        QFETCH(int, section);
        QFETCH(int, filter);
        AddTestEvent(QStringLiteral("1"), QStringLiteral("Wedding"), QStringLiteral("2027-06-05 15:30:00"),
                     kNasty);
        AddTestEvent(QStringLiteral("2"), kNasty, QStringLiteral("2027-06-04 18:00:00"));
        AddTestEntry(QStringLiteral("2"), kNasty, QStringLiteral("2027-06-04 18:00:00"),
                     QStringLiteral("2027-06-04 19:30:00"), kNasty);
        AddTestEntry(QStringLiteral("1"), QStringLiteral("Ceremony"), QStringLiteral("2027-06-05 15:30:00"),
                     QStringLiteral("2027-06-05 16:00:00"));
        const QString csv = WriteReport(section, filter, false);
        QVERIFY(!csv.isEmpty());
        bool whole = false;
        for (const QStringList& record : CsvRecords(csv))
            for (const QString& field : record)
                whole = whole || Plain(field).contains(Plain(kNasty));
        QVERIFY(whole);
        const QString file = WriteReport(section, filter, true);
        const DecodedRtf decoded = DecodeRtf(QString::fromLatin1(FileBytes(file)));
        QCOMPARE(decoded.GroupDepth, 0);
        QVERIFY(!decoded.DepthNegative);
        const GuestReportTestData::Shown rtf = GuestReportTestData::ReadRtf(file);
        QVERIFY2(Plain(rtf.Text).contains(Plain(kNasty)), qPrintable(rtf.Text.right(400)));
        // One event's timeline leaves the others out.
        if (section == clsReportCatalogue::Timelines)
            QVERIFY(!rtf.Text.contains(QStringLiteral("Ceremony")));
    }

    void timelineGroupsByDayAndEvent() {
        AddTestEvent(QStringLiteral("1"), QStringLiteral("Wedding"), QStringLiteral("2027-06-05 15:30:00"));
        AddTestEntry(QStringLiteral("1"), QStringLiteral("Ceremony"), QStringLiteral("2027-06-05 15:30:00"),
                     QStringLiteral("2027-06-05 16:00:00"));
        AddTestEntry(QStringLiteral("1"), QStringLiteral("Last dance"), QStringLiteral("2027-06-05 23:45:00"),
                     QStringLiteral("2027-06-06 00:15:00"));
        AddTestEntry(QStringLiteral("1"), QStringLiteral("Brunch"), QStringLiteral("2027-06-06 10:00:00"),
                     QStringLiteral("2027-06-06 10:00:00"));
        const QList<QStringList> records = CsvRecords(WriteReport(clsReportCatalogue::Timelines, 0, false));
        QCOMPARE(records.value(0), (QStringList{"Time", "Duration", "Description", "Contact(s)"}));
        QCOMPARE(records.value(1), QStringList{"05-Jun-2027: Wedding"});
        QCOMPARE(records.value(3).mid(1, 2), (QStringList{"30 min.", "Last dance"}));
        QCOMPARE(records.value(4), QStringList{"06-Jun-2027: Wedding"});
        // A moment has no duration (a spreadsheet must not read the dashes as a formula).
        QVERIFY(records.value(5).value(1).endsWith(QStringLiteral("--")));
        QCOMPARE(records.size(), 6);
    }
};

QTEST_GUILESS_MAIN(tst_EventReports)
#include "tst_EventReports.moc"
