#include "GuestReportTestData.h"
#include "core/clsApp.h"
#include "core/modGeneral.h"

#include <QtTest>
#include <memory>

using namespace GuestReportTestData;

// The wedding statistics as the reader sees them, from the small wedding with the clock fixed.
class tst_StatisticsReport : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    static QString Figure(const Shown& shown, const QString& label) {
        for (const QStringList& row : shown.Rows)
            if (row.value(0) == label)
                return row.value(1);
        return QStringLiteral("(no row)");
    }
    static QString RowLine(const Shown& shown, const QString& label) {
        for (qsizetype i = 0; i < shown.Rows.size(); ++i)
            if (shown.Rows[i].value(0) == label)
                return shown.RowLines[i];
        return {};
    }
    static void SetBudget(double estimate, double actual) {
        TestDatabase::Exec(
            "UPDATE BUDGET_CATEGORY_DICT SET ESTIMATE_AMOUNT_NB = ? WHERE BUDGET_CATEGORY_ID = 1",
            {estimate});
        TestDatabase::Exec("INSERT INTO BUDGET (BUDGET_ID, ACTUAL_AMOUNT_NB, DUE_DT, BUDGET_CATEGORY_ID) "
                           "VALUES (1, ?, '2027-05-01', 1)",
                           {actual});
    }
    static Shown Statistics(bool useRtf) { return Write(Route("clsRTFStatistics"), useRtf, false); }

private slots:
    // One wedding for all: a test that changes it puts it back, and the one that cannot comes last.
    void initTestCase() {
        RegisterReportClasses();
        db = std::make_unique<TestDatabase>();
        MakeSmallWedding();
    }
    void init() {
        gApp().TimeToWedding.clear();
        SetNowForTesting(QDateTime(QDate(2027, 5, 1), QTime(9, 30)));
    }
    void cleanup() {
        SetNowForTesting({});
        TestDatabase::Exec("DELETE FROM BUDGET");
        TestDatabase::Exec("UPDATE BUDGET_CATEGORY_DICT SET ESTIMATE_AMOUNT_NB = 0");
    }
    void cleanupTestCase() { db.reset(); }

    void titleAndHeader() {
        const Shown rtf = Statistics(true);
        QVERIFY2(rtf.Error.isEmpty(), qPrintable(rtf.Error));
        QVERIFY(rtf.Text.contains("Anna Lee and Ben Wedding Statistics\r\n"));
        QCOMPARE(rtf.Rows.first(), (QStringList{"Wedding Statistics", "Count"}));
        QVERIFY(rtf.RowLines.first().contains("\\qr"));
        const Shown csv = Statistics(false);
        QVERIFY2(csv.Error.isEmpty(), qPrintable(csv.Error));
        QCOMPARE(csv.Rows.first(), (QStringList{"Wedding Statistics", "Count"}));
    }

    // The wedding is on 5 June 2027 at 4 PM; the countdown's own tests cover the wording of the time.
    void timeToWedding_data() {
        QTest::addColumn<QDateTime>("now");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("figure");
        QTest::newRow("months before") << QDateTime(QDate(2027, 1, 1), QTime(16, 0)) << "Time until Wedding"
                                       << "155 days";
        QTest::newRow("one second after") << QDateTime(QDate(2027, 6, 5), QTime(16, 0, 1)) << "Time Married"
                                          << "1 second";
    }
    void timeToWedding() {
        QFETCH(QDateTime, now);
        QFETCH(QString, label);
        QFETCH(QString, figure);
        SetNowForTesting(now);
        for (const bool useRtf : {true, false}) {
            const Shown shown = Statistics(useRtf);
            QCOMPARE(shown.Rows.value(1), (QStringList{label, figure}));
        }
    }

    void theCountdownsTextWins() {
        gApp().TimeToWedding = QStringLiteral("3 days 1 hour ");
        QCOMPARE(Statistics(true).Rows.value(1), (QStringList{"Time until Wedding", "3 days 1 hour"}));
        gApp().TimeToWedding.clear();
    }

    void figures_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("figure");
        QTest::newRow("contacts") << "Total Contacts"
                                  << "8";
        QTest::newRow("not invited") << "    Not Yet Invited Contacts"
                                     << "1";
        QTest::newRow("invitations") << "Invitations"
                                     << "3";
        QTest::newRow("sent") << "    Sent"
                              << "3";
        QTest::newRow("received") << "    RSVPs Received"
                                  << "2";
        QTest::newRow("no reply") << "    RSVPs No Reply"
                                  << "1";
        QTest::newRow("attendees") << "Attendees (does not include bride and groom)"
                                   << "2";
        QTest::newRow("seated") << "    Seated"
                                << "2";
        QTest::newRow("beef of the bride") << "    Beef"
                                           << "0";
        QTest::newRow("unspecified") << "    Unspecified"
                                     << "0";
        QTest::newRow("budget") << "Total Wedding Budget"
                                << "$0.00";
    }
    void figures() {
        QFETCH(QString, label);
        QFETCH(QString, figure);
        for (const bool useRtf : {true, false})
            QCOMPARE(Figure(Statistics(useRtf), label), figure);
    }

    void headsAreBoldAndFilled() {
        const Shown rtf = Statistics(true);
        const QString head = RowLine(rtf, "Invitations");
        QVERIFY(head.contains("\\b "));
        QVERIFY(RtfTestTools::FileBytes(rtf.File).contains("\\clcbpat2"));
        const QString child = RowLine(rtf, "    Sent");
        QVERIFY(!child.isEmpty());
        QVERIFY(!child.contains("\\b "));
    }

    void remainder_data() {
        QTest::addColumn<double>("estimate");
        QTest::addColumn<double>("actual");
        QTest::addColumn<QString>("remaining");
        QTest::addColumn<bool>("red");
        QTest::newRow("over budget") << 1000.0 << 1500.0 << "($500.00)" << true;
        QTest::newRow("under budget") << 2000.0 << 1500.0 << "$500.00" << false;
        QTest::newRow("on budget") << 1500.0 << 1500.0 << "$0.00" << false;
    }
    void remainder() {
        QFETCH(double, estimate);
        QFETCH(double, actual);
        QFETCH(QString, remaining);
        QFETCH(bool, red);
        SetBudget(estimate, actual);
        const Shown rtf = Statistics(true);
        QCOMPARE(Figure(rtf, "Total Actual Expenses"),
                 QLocale(QLocale::English, QLocale::UnitedStates).toCurrencyString(actual));
        QCOMPARE(Figure(rtf, "Total Remaining"), remaining);
        const QString line = RowLine(rtf, "Total Remaining");
        QCOMPARE(line.contains("\\cf4"), red);
        QVERIFY(line.contains("\\qr"));
        // The colour and the alignment go back to normal after the money rows.
        QVERIFY(!RowLine(rtf, "Vendors").contains("\\cf4"));
        QCOMPARE(Figure(Statistics(false), "Total Remaining"), remaining);
    }

    void withoutMealsOnlyUnspecifiedRemains() {
        TestDatabase::Exec("UPDATE CONTACT SET MEAL_ID = NULL");
        TestDatabase::Exec("DELETE FROM MEAL_DICT");
        for (const bool useRtf : {true, false}) {
            const Shown shown = Statistics(useRtf);
            QStringList labels;
            for (const QStringList& row : shown.Rows)
                labels << row.value(0);
            const qsizetype unspecified = labels.indexOf("    Unspecified");
            QVERIFY(unspecified > 0);
            QCOMPARE(labels.value(unspecified - 1), QStringLiteral("    Out of Towner"));
            QCOMPARE(labels.value(unspecified + 1), QStringLiteral("Total Number of Tables"));
            QCOMPARE(shown.Rows.value(unspecified).value(1), QStringLiteral("2"));
        }
    }
};

QTEST_GUILESS_MAIN(tst_StatisticsReport)
#include "tst_StatisticsReport.moc"
