#include "TestDatabase.h"
#include "core/modUserQuery.h"

#include <QtTest>
#include <memory>

class tst_modUserQuery : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

    // Runs the query and gives back its rows, one line each, or the message it stopped with.
    static QString RunQuery(const QString& sql, const modUserQuery::Limits& limits = {}) {
        QStringList lines;
        try {
            modUserQuery::Run(
                gDB().DatabasePath, sql, limits, [](const QStringList&) {},
                [&lines](QStringList& row) { lines << row.join(QLatin1Char(',')); });
        } catch (const clsDbError& e) {
            return QStringLiteral("stopped: ") + e.Message();
        }
        return lines.join(QLatin1Char('\n'));
    }

private slots:
    void init() { db = std::make_unique<TestDatabase>(); }
    void cleanup() { db.reset(); }

    void onlyReadingRuns_data() {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("result");
        QTest::newRow("select") << "SELECT COUNT(*) FROM CONTACT" << "2";
        QTest::newRow("with") << "WITH x AS (SELECT 7) SELECT * FROM x" << "7";
        QTest::newRow("dates as stored") << "SELECT '2027-06-05' AS EVENT_DT" << "2027-06-05";
        QTest::newRow("delete") << "DELETE FROM CONTACT" << "stopped: The query was not run: only a statement";
        QTest::newRow("update") << "UPDATE CONTACT SET FIRST_NM = 'x'" << "stopped: The query was not run";
        QTest::newRow("drop") << "DROP TABLE CONTACT" << "stopped: The query was not run";
        QTest::newRow("two statements") << "SELECT 1; DELETE FROM CONTACT" << "stopped: The query was not run: only one";
        QTest::newRow("begin") << "BEGIN IMMEDIATE" << "stopped: The query was not run";
        QTest::newRow("savepoint") << "SAVEPOINT x" << "stopped: The query was not run";
        QTest::newRow("pragma that reads") << "PRAGMA table_info(CONTACT)" << "stopped: The query was not run";
        QTest::newRow("pragma that writes") << "PRAGMA journal_mode=WAL" << "stopped: The query was not run";
        QTest::newRow("attach") << "ATTACH DATABASE '/tmp/x.db' AS x" << "stopped: The query was not run";
        QTest::newRow("nonsense") << "SELEKT" << "stopped: The query was not run: near \"SELEKT\"";
    }
    void onlyReadingRuns() {
        QFETCH(QString, sql);
        QFETCH(QString, result);
        const QString got = RunQuery(sql);
        QVERIFY2(got.startsWith(result), qPrintable(got));
        QCOMPARE(db->Scalar("SELECT COUNT(*) FROM CONTACT"), QStringLiteral("2"));
        QCOMPARE(db->Scalar("PRAGMA journal_mode"), QStringLiteral("delete"));
    }

    void aQueryStopsAtItsLimits_data() {
        QTest::addColumn<int>("timeoutMs");
        QTest::addColumn<int>("maxRows");
        QTest::addColumn<QString>("says");
        QTest::newRow("too many rows") << 60000 << 5 << "returns more than 5 rows";
        QTest::newRow("too long") << 200 << 1000000000 << "ran longer than 0.2 seconds";
    }
    void aQueryStopsAtItsLimits() {
        QFETCH(int, timeoutMs);
        QFETCH(int, maxRows);
        QFETCH(QString, says);
        const QString sql = QTest::currentDataTag() == QByteArray("too long")
                                ? "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "
                                  "SELECT COUNT(*) FROM n"
                                : "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i FROM n";
        const QString got = RunQuery(sql, {timeoutMs, maxRows});
        QVERIFY2(got.contains(says), qPrintable(got));
    }
};

QTEST_GUILESS_MAIN(tst_modUserQuery)
#include "tst_modUserQuery.moc"
