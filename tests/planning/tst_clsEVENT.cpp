#include "PlanningTestTools.h"
#include "core/clsApp.h"
#include "planning/clsEVENT.h"
#include "platform/clsRegistry.h"

#include <QtTest>
#include <memory>

class tst_clsEVENT : public QObject {
    Q_OBJECT

    std::unique_ptr<PlanningDatabase> db;

    static clsEVENT NewEvent(const QString& name, const QString& date) {
        clsEVENT event;
        event.EVENT_TX = name;
        event.EVENT_DT = date;
        return event;
    }
    static QStringList Names(const QList<clsEVENT>& events) {
        return Pluck(events, &clsEVENT::EVENT_TX);
    }

private slots:
    void init() { db = std::make_unique<PlanningDatabase>(); }
    void cleanup() { db.reset(); }

    void theWeddingDayCannotBeDeleted_data() {
        QTest::addColumn<QString>("key");
        QTest::newRow("1") << "1";
        QTest::newRow("1 with blanks") << " 1 ";
    }
    void theWeddingDayCannotBeDeleted() {
        QFETCH(QString, key);
        QVERIFY(!RecordIO::Attempt([&] { clsEVENT().Delete(key); }));
        QCOMPARE(db->Messages().Prompts, QStringList({"You cannot delete the Wedding Day event."}));
        QCOMPARE(db->Messages().Titles, QStringList({"Vowren"}));
        QCOMPARE(PlanningDatabase::Count("EVENT", "WHERE EVENT_ID = 1"), QStringLiteral("1"));
    }

    void otherEventsAreDeletedWithTheirTimelines() {
        clsEVENT shower = NewEvent("Bridal shower", "01-May-2027 2:00 PM");
        shower.Save(true);
        QCOMPARE(shower.EVENT_ID, QStringLiteral("2"));
        TestDatabase::Exec(
            "INSERT INTO TIMELINE (TIMELINE_ID, TIMELINE_START_DT, TIMELINE_END_DT, TIMELINE_DESC, "
            "EVENT_ID) VALUES (1, '2027-05-01 14:00:00', '2027-05-01 15:00:00', 'Games', 2)");
        QCOMPARE(clsEVENT().GetTotal(), 2L);
        clsEVENT().Delete("2");
        QCOMPARE(clsEVENT().GetTotal(), 1L);
        QCOMPARE(PlanningDatabase::Count("TIMELINE"), QStringLiteral("0"));
        QVERIFY(db->Messages().Prompts.isEmpty());

        // The highest key is given out again.
        clsEVENT rehearsal = NewEvent("Rehearsal", "04-Jun-2027 6:00 PM");
        rehearsal.Save(true);
        QCOMPARE(rehearsal.EVENT_ID, QStringLiteral("2"));
    }

    void savingTheWeddingDayReachesTheApplication() {
        clsEVENT wedding;
        QVERIFY(wedding.OpenRecord("1"));
        wedding.EVENT_DT = QStringLiteral("05-Jun-2027 3:00 PM");
        wedding.Save(false);
        QCOMPARE(gWeddingEvent().EVENT_DT_DateFormat(), QStringLiteral("05-Jun-2027"));
        QCOMPARE(gWeddingEvent().EVENT_DT_TimeFormat(),
                 FormatDateTime(QDateTime({2027, 6, 5}, {15, 0}), TimeFormat()));
        const QString stored = gRegistry().GetSetting(clsApp::RootKey(), "WeddingDate", "unset");
        QCOMPARE(stored, wedding.EVENT_DT_DateTimeFormat());
        QVERIFY(stored.startsWith(QLatin1String("05-Jun-2027 ")));

        // Another event changes neither.
        clsEVENT party = NewEvent("After party", "06-Jun-2027 1:00 AM");
        party.Save(true);
        QCOMPARE(gWeddingEvent().EVENT_DT_DateFormat(), QStringLiteral("05-Jun-2027"));
        QCOMPARE(gRegistry().GetSetting(clsApp::RootKey(), "WeddingDate", "unset"), stored);
    }

    void eventsOfOneCalendarDay_data() {
        QTest::addColumn<QString>("day");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("program date") << "05-Jun-2027" << QStringList({"Wedding Day", "Brunch", "Dance"});
        QTest::newRow("date with a time")
            << "05-Jun-2027 11:00 PM" << QStringList({"Wedding Day", "Brunch", "Dance"});
        QTest::newRow("ISO date") << "2027-06-04" << QStringList({"Rehearsal"});
        QTest::newRow("a day without events") << "07-Jun-2027" << QStringList();
        QTest::newRow("no date at all") << "soon" << QStringList();
        QTest::newRow("every event") << ""
                                     << QStringList(
                                            {"Undated", "Rehearsal", "Wedding Day", "Brunch", "Dance"});
    }
    void eventsOfOneCalendarDay() {
        QFETCH(QString, day);
        QFETCH(QStringList, names);
        PlanningDatabase::SetWeddingDate("05-Jun-2027");
        for (clsEVENT event :
             {NewEvent("Dance", "05-Jun-2027 11:59 PM"), NewEvent("Rehearsal", "04-Jun-2027 6:00 PM"),
              NewEvent("Brunch", "05-Jun-2027 10:00 AM"), NewEvent("Undated", "")})
            event.Save(true);
        QCOMPARE(Names(clsEVENT().OpenRecords(day)), names);
    }

    void addressOnOneLineOrMany() {
        clsEVENT event;
        event.ADDRESS_TX = QStringLiteral("12 Oak St\r\nSuite 4");
        event.CITY_TX = QStringLiteral("Boston");
        event.STATE_TX = QStringLiteral("MA");
        event.ZIP_TX = QStringLiteral("02101");
        QCOMPARE(event.DisplayAddress(false), QStringLiteral("12 Oak St, Suite 4, Boston, MA  02101"));
        QCOMPARE(event.DisplayAddress(true), QStringLiteral("12 Oak St\r\nSuite 4\r\nBoston, MA  02101"));
    }

    void anUnreadableDateIsRefused() {
        clsEVENT event = NewEvent("Picnic", "the 5th of June");
        QVERIFY(!RecordIO::Attempt([&] { event.Save(true); }));
        QVERIFY(event.EVENT_ID.isEmpty());
        QCOMPARE(db->Messages().Prompts.size(), 1);
        QCOMPARE(clsEVENT().GetTotal(), 1L);
    }

    void patchOneJoinsTheAddressParts() {
        TestDatabase::Exec("UPDATE EVENT SET ADDRESS_TX = '12 Oak St', CITY_TX = 'Boston', STATE_TX = 'MA', "
                           "ZIP_TX = '02101', COUNTRY_TX = 'USA' WHERE EVENT_ID = 1");
        clsEVENT::Patch_1_Apply();
        clsEVENT event;
        QVERIFY(event.OpenRecord("1"));
        QCOMPARE(event.ADDRESS_TX, QStringLiteral("12 Oak St\r\nBoston, MA  02101"));
        QVERIFY(event.CITY_TX.isEmpty() && event.STATE_TX.isEmpty() && event.ZIP_TX.isEmpty() &&
                event.COUNTRY_TX.isEmpty());
        QCOMPARE(event.EVENT_TX, QStringLiteral("Wedding Day"));
    }
};

QTEST_GUILESS_MAIN(tst_clsEVENT)
#include "tst_clsEVENT.moc"
