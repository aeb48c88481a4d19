#include "seating/SeaterTestData.h"
#include "seating/clsSeater.h"

#include <QSet>
#include <QtTest>

using SeaterTestData::RandomWedding;
using SeaterTestData::Wedding;

namespace {

// What must hold of every chart, checked apart from the seater: no table over its seats, no 'A' pair at
// one table, no household at two tables.
QString BrokenHardRule(const SeatingInstance& in, const SeatingChart& chart) {
    QHash<QString, int> taken;
    for (const QString& table : chart.Seats)
        if (!table.isEmpty())
            ++taken[table];
    for (const SeatingTable& table : in.Tables)
        if (taken.value(table.TableId) > table.Seats)
            return QStringLiteral("table %1 over-full").arg(table.Number);
    for (const SeatingRulePair& rule : in.Rules) {
        const QString a = chart.Seats.value(rule.ContactId), b = chart.Seats.value(rule.OtherContactId);
        if (rule.Apart && !a.isEmpty() && a == b)
            return QStringLiteral("%1 and %2 together").arg(rule.ContactId, rule.OtherContactId);
    }
    QHash<QString, QSet<QString>> tablesOfInvite;
    for (const SeatingPerson& p : in.People)
        if (!p.InviteId.isEmpty() && !chart.Seats.value(p.ContactId).isEmpty())
            tablesOfInvite[p.InviteId].insert(chart.Seats.value(p.ContactId));
    for (auto it = tablesOfInvite.cbegin(); it != tablesOfInvite.cend(); ++it)
        if (it.value().size() > 1)
            return QStringLiteral("invitation %1 split").arg(it.key());
    return {};
}

SeatingChart Seat(const SeatingInstance& in, bool keepSeated = false, quint64 seed = 1) {
    SeaterOptions options;
    options.KeepSeated = keepSeated;
    options.Seed = seed;
    options.Seconds = 30;
    options.Moves = 100000; // plenty for weddings this small, and quick under the sanitizers
    return clsSeater(in).Run(options);
}

} // namespace

class tst_clsSeater : public QObject {
    Q_OBJECT

private slots:
    // Small weddings whose best chart is known by hand: its score, who sits, and who shares a table.
    void bestChart_data() {
        QTest::addColumn<QString>("wedding");
        QTest::addColumn<bool>("keepSeated");
        QTest::addColumn<int>("score");
        QTest::addColumn<int>("seated");
        QTest::addColumn<int>("hardViolations");
        QTest::addColumn<QString>("together"); // groups that share a table, split by '|'
        QTest::addColumn<QString>("problem");  // a part of some problem's text ("" for no problem)

        QTest::newRow("two couples asked together")
            << "tables 4 4; home ann bob; home cid dan; home eve fay; T ann cid 10" << false << 10 << 6 << 0
            << "ann bob cid dan|eve fay"
            << "";
        QTest::newRow("the strong pair beats two weak ones")
            << "tables 2 2 2; home a; home b; home c; home d; home e; home f; T a b 10; T a c 6; T b c 6"
            << false << 10 << 6 << 0 << "a b"
            << "b and c (keep together, 6) sit at tables";
        QTest::newRow("a packing that meets both rules")
            << "tables 3 3; home a b; home c d; home e; home f; T a e 5; T c f 5; T a c 1" << false << 10 << 6
            << 0 << "a b e|c d f"
            << "(keep together, 1)";
        QTest::newRow("apart wins over together")
            << "tables 4 4; home a b; home c d; T a c 50; A c a" << false << 0 << 4 << 0 << "a b|c d"
            << "keep apart wins";
        QTest::newRow("a household larger than every table")
            << "tables 3 3; home a b c d; home e" << false << 0 << 1 << 0 << ""
            << "larger than every table";
        QTest::newRow("an apart pair inside one household")
            << "tables 4; home a b; A a b" << false << 0 << 2 << 1 << "a b"
            << "never split";
        QTest::newRow("a full house leaves the smaller household out")
            << "tables 2 2; home a b; home c d; home e" << false << 0 << 4 << 0 << "a b|c d"
            << "e was left unseated";
        QTest::newRow("seating one more person comes before a rule")
            << "tables 3; home a b; home c; home d; T a c 1; T c d 9" << false << 1 << 3 << 0 << "a b c"
            << "d was left unseated";
        QTest::newRow("a brought guest sits with the host")
            << "tables 2 2; home hal; guest gil of hal; home x; T x gil 10" << false << 0 << 3 << 0
            << "hal gil"
            << "(keep together, 10)";
        QTest::newRow("same side breaks the tie")
            << "tables 2 2; home a; home b; home c; home d; side 1 a c; side 2 b d" << false << 0 << 4 << 0
            << "a c|b d"
            << "";
        QTest::newRow("seated guests stay, their partners come")
            << "tables 2 2; home a; home b; home c; sits a 2; T a b 10" << true << 10 << 3 << 0 << "a b"
            << "";
        QTest::newRow("a seated household's rest has no seat left")
            << "tables 2 2; home a b c; sits a 1; sits b 1" << true << 0 << 2 << 0 << "a b"
            << "sits at table #1, which has no seat left";
        QTest::newRow("no tables") << "home a" << false << 0 << 0 << 0 << ""
                                   << "there are no tables";
    }
    void bestChart() {
        QFETCH(QString, wedding);
        QFETCH(bool, keepSeated);
        const SeatingInstance in = Wedding(wedding);

        const SeatingChart chart = Seat(in, keepSeated);

        QTEST(int(chart.Score), "score");
        QTEST(chart.Seated, "seated");
        QCOMPARE(chart.Unseated, int(in.People.size()) - chart.Seated);
        QTEST(chart.HardViolations, "hardViolations");
        QFETCH(int, hardViolations);
        if (hardViolations == 0)
            QCOMPARE(BrokenHardRule(in, chart), QString());
        QFETCH(QString, together);
        for (const QString& group : together.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
            const QStringList people = group.split(QLatin1Char(' '));
            for (const QString& p : people)
                QVERIFY2(!chart.Seats.value(p).isEmpty() &&
                             chart.Seats.value(p) == chart.Seats.value(people[0]),
                         qPrintable(group + QStringLiteral("\n") + chart.Explanation()));
        }
        QFETCH(QString, problem);
        const QString told = chart.Problems.join(QLatin1Char('\n'));
        QVERIFY2(problem.isEmpty() ? told.isEmpty() : told.contains(problem), qPrintable(told));
    }

    // The people kept where they sat, whatever the rules say.
    void keepSeatedMovesNobodySeated() {
        SeatingInstance in =
            Wedding("tables 2 2 2; home a; home b; home c; home d; sits a 1; sits b 2; T a b 50");
        const SeatingChart kept = Seat(in, true);
        QCOMPARE(kept.Seats.value("a"), QString("1"));
        QCOMPARE(kept.Seats.value("b"), QString("2"));
        QCOMPARE(kept.Score, 0L);
        QCOMPARE(Seat(in, false).Score, 50L);
    }

    // The explanation names each table's people, why they sit together, then what was not met.
    void explanationTellsTablesThenProblems() {
        const SeatingChart chart = Seat(Wedding("tables 3; home a b; home c; home d; T a c 7; T c d 2"));
        QCOMPARE(chart.Explanation(),
                 QString("Table #1: a, b, c\n"
                         "    one invitation, kept together: a, b\n"
                         "    kept together: a and c (7)\n"
                         "\n"
                         "Not met:\n"
                         "    c and d (keep together, 2) could not be met: d is unseated.\n"
                         "    d was left unseated: no table had 1 free seat left for them "
                         "(3 seats for 4 attendees)."));
    }

    // Measuring a chart made by hand counts what breaks the hard rules.
    void measureCountsHandMadeViolations() {
        const SeatingInstance in = Wedding(
            "tables 2 2; home a b; home c; home d; sits a 1; sits b 2; sits c 2; sits d 2; A b c; T a b 4");
        const SeatingChart chart = clsSeater(in).Measure();
        QCOMPARE(chart.HardViolations, 3); // the household split, b with c, three at a table of two
        QCOMPARE(chart.Score, 0L);
        QCOMPARE(chart.Seated, 4);
    }

    void sameSeedSameChart_data() {
        QTest::addColumn<quint64>("seed");
        QTest::newRow("seed 1") << quint64(1);
        QTest::newRow("seed 99") << quint64(99);
    }
    void sameSeedSameChart() {
        QFETCH(quint64, seed);
        const SeatingInstance in = RandomWedding(7, 120, 14, 80);
        const SeatingChart first = Seat(in, false, seed), second = Seat(in, false, seed);
        QCOMPARE(first.Seats, second.Seats);
        QCOMPARE(first.Score, second.Score);
        QCOMPARE(BrokenHardRule(in, first), QString());
        QCOMPARE(first.Seated, int(in.People.size()));
    }

    // Cancelled at the first report: the chart so far, whole and within the hard rules.
    void cancelKeepsAValidChart() {
        const SeatingInstance in = RandomWedding(3, 200, 25, 150);
        SeaterOptions options;
        options.Progress = [](double, long) { return false; };
        const SeatingChart chart = clsSeater(in).Run(options);
        QVERIFY(chart.Cancelled);
        QCOMPARE(chart.Seats.size(), in.People.size());
        QCOMPARE(BrokenHardRule(in, chart), QString());
    }
};

QTEST_APPLESS_MAIN(tst_clsSeater)
#include "tst_clsSeater.moc"
