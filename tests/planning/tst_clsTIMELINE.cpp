#include "PlanningTestTools.h"
#include "planning/clsTIMELINE.h"

#include <QtTest>
#include <memory>

class tst_clsTIMELINE : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

    static clsTIMELINE Entry(const QString& eventId, const QString& start, const QString& end,
                             const QString& desc) {
        clsTIMELINE entry;
        entry.EVENT_ID = eventId;
        entry.TIMELINE_START_DT = start;
        entry.TIMELINE_END_DT = end;
        entry.TIMELINE_DESC = desc;
        return entry;
    }
    static QString Time(int hour, int minute) { return FormatTime(QTime(hour, minute)); }
    static QString AddEvent(const QString& name, const QString& date) {
        clsEVENT event;
        event.EVENT_TX = name;
        event.EVENT_DT = date;
        event.Save(true);
        return event.EVENT_ID;
    }

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void duration_data() {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("duration");
        QTest::newRow("an hour and a half") << "05-Jun-2027 10:15 AM"
                                            << "05-Jun-2027 11:45 AM"
                                            << "1 hr. 30 min.";
        QTest::newRow("two hours") << "05-Jun-2027 10:00 AM"
                                   << "05-Jun-2027 12:00 PM"
                                   << "2 hrs.";
        QTest::newRow("one hour") << "05-Jun-2027 3:00 PM"
                                  << "05-Jun-2027 4:00 PM"
                                  << "1 hr.";
        QTest::newRow("minutes only") << "05-Jun-2027 3:00 PM"
                                      << "05-Jun-2027 3:05 PM"
                                      << "5 min.";
        QTest::newRow("no time") << "05-Jun-2027 10:00 AM"
                                 << "05-Jun-2027 10:00 AM"
                                 << "--";
        QTest::newRow("over midnight, minutes") << "05-Jun-2027 11:30 PM"
                                                << "06-Jun-2027 12:15 AM"
                                                << "45 min.";
        QTest::newRow("to midnight exactly") << "05-Jun-2027 11:30 PM"
                                             << "06-Jun-2027"
                                             << "30 min.";
        QTest::newRow("from midnight") << "05-Jun-2027"
                                       << "05-Jun-2027 8:00 AM"
                                       << "8 hrs.";
        QTest::newRow("a whole day counts nothing") << "05-Jun-2027 9:00 AM"
                                                    << "06-Jun-2027 9:00 AM"
                                                    << "--";
        QTest::newRow("nearly a day") << "05-Jun-2027 9:01 AM"
                                      << "06-Jun-2027 9:00 AM"
                                      << "23 hrs. 59 min.";
        QTest::newRow("stored form") << "2027-06-05 22:45:00"
                                     << "2027-06-06 01:00:00"
                                     << "2 hrs. 15 min.";
    }
    void duration() {
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(QString, duration);
        clsTIMELINE entry = Entry("1", start, end, "x");
        QCOMPARE(entry.Duration(), duration);
    }

    void startToEnd_data() {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("text");
        QTest::newRow("two times") << "05-Jun-2027 10:00 AM"
                                   << "05-Jun-2027 10:30 AM" << Time(10, 0) + "-" + Time(10, 30);
        QTest::newRow("same time once") << "05-Jun-2027 10:00 AM"
                                        << "05-Jun-2027 10:00 AM" << Time(10, 0);
        QTest::newRow("same clock time, next day") << "05-Jun-2027 9:00 PM"
                                                   << "06-Jun-2027 9:00 PM" << Time(21, 0);
        QTest::newRow("over midnight") << "05-Jun-2027 11:30 PM"
                                       << "06-Jun-2027" << Time(23, 30) + "-" + Time(0, 0);
    }
    void startToEnd() {
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(QString, text);
        QCOMPARE(Entry("1", start, end, "x").TIMELINE_START_TM_TO_END_TM(), text);
    }

    void theNextEntryStartsAtTheLatestEnd() {
        const QString brunch = AddEvent("Brunch", "06-Jun-2027 10:00 AM");
        QCOMPARE(clsTIMELINE().GetLastTime("1"), QStringLiteral("8:00 AM"));
        QCOMPARE(clsTIMELINE().GetLastTime(QString()), Time(0, 0));
        // Typed out of order: the latest end wins, not the last one typed.
        for (clsTIMELINE entry : {Entry("1", "05-Jun-2027 3:00 PM", "05-Jun-2027 3:30 PM", "Ceremony"),
                                  Entry("1", "05-Jun-2027 11:30 PM", "06-Jun-2027 12:15 AM", "Send-off"),
                                  Entry("1", "05-Jun-2027 5:00 PM", "05-Jun-2027 9:00 PM", "Reception"),
                                  Entry(brunch, "06-Jun-2027 10:00 AM", "06-Jun-2027 11:45 AM", "Brunch")})
            entry.Save(true);
        QCOMPARE(clsTIMELINE().GetLastTime("1"), Time(0, 15));
        QCOMPARE(clsTIMELINE().GetLastTime(brunch), Time(11, 45));
        QCOMPARE(clsTIMELINE().GetLastTime("99"), QStringLiteral("8:00 AM"));
    }

    void countsAndEventsWithEntries() {
        const QString rehearsal = AddEvent("Rehearsal", "04-Jun-2027 6:00 PM");
        const QString brunch = AddEvent("Brunch", "06-Jun-2027 10:00 AM");
        PlanningDatabase::SetWeddingDate("05-Jun-2027 3:00 PM");
        for (clsTIMELINE entry : {Entry(brunch, "06-Jun-2027 10:00 AM", "06-Jun-2027 11:00 AM", "Eat"),
                                  Entry("1", "05-Jun-2027 3:00 PM", "05-Jun-2027 3:30 PM", "Ceremony"),
                                  Entry("1", "05-Jun-2027 2:00 PM", "05-Jun-2027 2:30 PM", "Photos")})
            entry.Save(true);
        QCOMPARE(clsTIMELINE().GetTotal(), 3L);
        QCOMPARE(clsTIMELINE().GetTotal("1"), 2L);
        QCOMPARE(clsTIMELINE().GetTotal(rehearsal), 0L);
        QCOMPARE(clsTIMELINE().GetTotalEvents(), 2L);
        QStringList events;
        for (const clsEVENT& event : clsTIMELINE().OpenEvents())
            events << event.EVENT_ID + QLatin1Char(' ') + event.EVENT_TX + QLatin1Char(' ') +
                          event.EVENT_DT_DateFormat();
        QCOMPARE(events, QStringList({"1 Wedding Day 05-Jun-2027", brunch + " Brunch 06-Jun-2027"}));

        QStringList entries;
        for (const clsTIMELINE& entry : clsTIMELINE().OpenRecords())
            entries << entry.EVENT_TX + QStringLiteral(": ") + entry.TIMELINE_DESC;
        QCOMPARE(entries, QStringList({"Wedding Day: Photos", "Wedding Day: Ceremony", "Brunch: Eat"}));
        QCOMPARE(clsTIMELINE().OpenRecords(brunch).size(), 1);
    }

    void anEntryNeedsAnEventThatExists() {
        clsTIMELINE entry = Entry("42", "05-Jun-2027 3:00 PM", "05-Jun-2027 3:30 PM", "Lost");
        QVERIFY(!RecordIO::Attempt([&] { entry.Save(true); }));
        QVERIFY(entry.TIMELINE_ID.isEmpty());
        QCOMPARE(db->Messages().Prompts.size(), 1);
        QCOMPARE(clsTIMELINE().GetTotal(), 0L);
    }

    void savedAndReadBack() {
        clsTIMELINE entry = Entry("1", "05-Jun-2027 11:30 PM", "06-Jun-2027 12:00 AM", "Sparklers");
        entry.CONTACT_NM = QStringLiteral("Everyone");
        entry.Save(true);
        QCOMPARE(entry.TIMELINE_ID, QStringLiteral("1"));
        QCOMPARE(TestDatabase::Scalar(
                     "SELECT TIMELINE_START_DT || '/' || TIMELINE_END_DT AS STORED FROM TIMELINE"),
                 QStringLiteral("2027-06-05 23:30:00/2027-06-06"));
        clsTIMELINE again;
        QVERIFY(again.OpenRecord("1"));
        QCOMPARE(again.EVENT_TX, QStringLiteral("Wedding Day"));
        QCOMPARE(again.TIMELINE_START_DT_DateFormat(), QStringLiteral("05-Jun-2027"));
        QCOMPARE(again.TIMELINE_START_DT_DateTimeFormat(), QStringLiteral("05-Jun-2027 ") + Time(23, 30));
        QCOMPARE(again.TIMELINE_END_DT_DateTimeFormat(), QStringLiteral("06-Jun-2027 ") + Time(0, 0));
        QCOMPARE(again.Duration(), QStringLiteral("30 min."));

        again.TIMELINE_DESC = QStringLiteral("Sparklers and cake");
        again.Save(false);
        clsTIMELINE().Delete("1");
        clsTIMELINE reused = Entry("1", "05-Jun-2027 1:00 PM", "05-Jun-2027 1:30 PM", "Again");
        reused.Save(true);
        QCOMPARE(reused.TIMELINE_ID, QStringLiteral("1"));
    }
};

QTEST_GUILESS_MAIN(tst_clsTIMELINE)
#include "tst_clsTIMELINE.moc"
