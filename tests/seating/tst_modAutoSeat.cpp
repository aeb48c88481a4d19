#include "TestDatabase.h"
#include "guests/clsCONTACT.h"
#include "seating/SeatingTestData.h"
#include "seating/clsSEATING_RULE.h"
#include "seating/modAutoSeat.h"

#include <QtTest>
#include <memory>

using namespace SeatingTestData;

namespace {

QString AddRule(const QString& a, const QString& b, const QString& kind, const QString& weight = {}) {
    clsSEATING_RULE rule;
    rule.CONTACT_ID = a;
    rule.OTHER_CONTACT_ID = b;
    rule.RULE_CD = kind;
    rule.WEIGHT_NB = weight;
    rule.Save(true);
    return rule.SEATING_RULE_ID;
}

long Rules() {
    return TestDatabase::Scalar("SELECT COUNT(*) FROM SEATING_RULE").toLong();
}

} // namespace

class tst_modAutoSeat : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void ruleIsChecked_data() {
        QTest::addColumn<QString>("other");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("weight");
        QTest::addColumn<QString>("message");
        QTest::newRow("together, 1") << "11"
                                     << "T"
                                     << "1"
                                     << "";
        QTest::newRow("together, 100") << "11"
                                       << "T"
                                       << "100"
                                       << "";
        QTest::newRow("apart drops the strength") << "11"
                                                  << "A"
                                                  << "40"
                                                  << "";
        QTest::newRow("strength 0") << "11"
                                    << "T"
                                    << "0"
                                    << "a whole number from 1 to 100";
        QTest::newRow("strength 101") << "11"
                                      << "T"
                                      << "101"
                                      << "a whole number from 1 to 100";
        QTest::newRow("strength in words") << "11"
                                           << "T"
                                           << "lots"
                                           << "a whole number from 1 to 100";
        QTest::newRow("another kind") << "11"
                                      << "X"
                                      << ""
                                      << "together (T) or apart (A)";
        QTest::newRow("one person twice") << "10"
                                          << "A"
                                          << ""
                                          << "two different people";
        QTest::newRow("nobody") << ""
                                << "A"
                                << ""
                                << "Choose the two people";
        QTest::newRow("unknown contact") << "999"
                                         << "A"
                                         << ""
                                         << "no contact with the key 999";
    }
    void ruleIsChecked() {
        QFETCH(QString, other);
        QFETCH(QString, kind);
        QFETCH(QString, weight);
        QFETCH(QString, message);
        AddGuests(2);
        const QString error = ErrorOf([&] { AddRule("10", other, kind, weight); });
        QVERIFY2(message.isEmpty() ? error.isEmpty() : error.contains(message), qPrintable(error));
        QCOMPARE(Rules(), message.isEmpty() ? 1L : 0L);
        if (message.isEmpty() && kind == "A")
            QCOMPARE(TestDatabase::Scalar("SELECT WEIGHT_NB FROM SEATING_RULE"), QString());
    }

    // A rule goes with either of its people.
    void deletingAPersonDeletesTheirRules() {
        const QStringList guests = AddGuests(3);
        AddRule(guests[0], guests[1], "T", "5");
        AddRule(guests[2], guests[0], "A");
        AddRule(guests[1], guests[2], "A");
        clsCONTACT().Delete(guests[0]);
        QCOMPARE(Rules(), 1L);
        const QList<clsSEATING_RULE> left = clsSEATING_RULE::OpenRecords();
        QCOMPARE(left.size(), 1);
        QCOMPARE(left[0].Caption(), QString("Ann Guest0011 and Ann Guest0012: Keep apart"));
    }

    // What the seater is told: a rule about someone not attending is listed and left out, and a seat held by
    // someone not attending stays taken.
    void theWeddingAsTheSeaterSeesIt() {
        const QString table = AddTable("3", 4);
        const QStringList guests = AddGuests(3);
        TestDatabase::Exec("UPDATE CONTACT SET ATTENDING_FG = 'N', DINING_TABLE_ID = ? WHERE CONTACT_ID = ?",
                           {table, guests[2]});
        AddRule(guests[0], guests[1], "T", "30");
        AddRule(guests[0], guests[2], "A");

        const SeatingInstance in = modAutoSeat::ReadInstance();

        QCOMPARE(in.People.size(), 4); // the couple and two guests
        QCOMPARE(in.Tables.size(), 1);
        QCOMPARE(in.Tables[0].Occupied, 1);
        QCOMPARE(in.Rules.size(), 1);
        QCOMPARE(
            in.IgnoredRules,
            QStringList("The rule \"Ann Guest0010 and Ann Guest0012: Keep apart\" was ignored: Ann Guest0012 "
                        "is not attending."));
    }

    void noTablesWritesNothing() {
        AddGuests(2);
        QCOMPARE(ErrorOf([] { modAutoSeat::Propose({}); }), modAutoSeat::NoTablesMessage());
        QCOMPARE(TestDatabase::Scalar("SELECT COUNT(*) FROM CONTACT WHERE DINING_TABLE_ID IS NOT NULL"), "0");
    }

    // The proposal is written whole, and what it gives back puts everyone where they sat.
    void applyWritesTheChartAndGivesTheWayBack() {
        const QString first = AddTable("1", 2), second = AddTable("2", 4);
        const QStringList guests = AddGuests(4);
        SeatInDb({"1", "2"}, first);
        AddRule(guests[0], guests[1], "T", "50");
        AddRule(guests[2], guests[3], "T", "50");
        AddRule(guests[0], guests[2], "A");
        const SeatingChart before = modAutoSeat::MeasureCurrent();
        QCOMPARE(before.Score, 0L);

        const SeatingChart chart = modAutoSeat::Propose({});
        QCOMPARE(chart.Score, 100L);
        QCOMPARE(TableOf(guests[0]), QString()); // nothing written yet
        const modSeating::Seats way = modAutoSeat::Apply(chart);

        QCOMPARE(modAutoSeat::MeasureCurrent().Score, 100L);
        QCOMPARE(modAutoSeat::MeasureCurrent().Seated, 6);
        QCOMPARE(TableOf(guests[0]), TableOf(guests[1]));
        QVERIFY(TableOf(guests[0]) != TableOf(guests[2]));
        QCOMPARE(SeatedInDb(first).size() + SeatedInDb(second).size(), 6);
        modSeating::RestoreSeats(way);
        QCOMPARE(SeatedInDb(first), QStringList({"1", "2"}));
        QCOMPARE(SeatedInDb(second), QStringList());
    }
};

QTEST_GUILESS_MAIN(tst_modAutoSeat)
#include "tst_modAutoSeat.moc"
