// Custom reports: the catalogue read line by line, the layout the column aliases give, the run of a
// query into a document, and the catalogue that comes with the program on a demo wedding.
#include "RtfTestTools.h"
#include "TestDatabase.h"
#include "core/modUserQuery.h"
#include "reports/clsRTFMasterTemp.h"
#include "reports/clsRTFSQL.h"
#include "reports/clsSQLCatalogue.h"
#include "reports/modReportRegistry.h"
#include "reports/modReportRunner.h"
#include "startup/modDemoWedding.h"

#include <QDir>
#include <QSet>
#include <QtTest>

namespace {

using Cells = QList<clsRTFSQL::HeaderCell>;

QString Lines(const QStringList& lines) {
    return lines.join(QStringLiteral("\r\n"));
}

// An item of the catalogue with that name and statement.
QStringList Item(const QString& name, const QString& sql = QStringLiteral("SELECT 1")) {
    return {QStringLiteral("<SQL_ITEM>"), QStringLiteral("<SQL_NAME>%1</SQL_NAME>").arg(name),
            QStringLiteral("<SQL>%1</SQL>").arg(sql), QStringLiteral("</SQL_ITEM>")};
}

QString Names(const clsSQLCatalogue& catalogue) {
    QStringList names;
    for (const clsSQL_XML& item : catalogue.Items)
        names << item.SQL_NAME;
    return names.join(QLatin1Char('|'));
}

QStringList ReportFiles() {
    return QDir(gApp().ReportPath()).entryList(QDir::Files);
}

} // namespace

class tst_CustomSql : public QObject {
    Q_OBJECT

private slots:
    void readsTheCatalogueLineByLine_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("names");
        QTest::addColumn<QString>("problem"); // a part of the one problem said, or "" for none
        const QStringList a = Item("A");
        const QStringList b = Item("B");
        QTest::newRow("two items") << Lines(a + b) << "A|B"
                                   << "";
        QTest::newRow("blanks around the tags")
            << Lines({"   <SQL_ITEM>  ", "<SQL_NAME>A</SQL_NAME>", "<SQL>SELECT 1</SQL>", " </SQL_ITEM> "})
            << "A"
            << "";
        QTest::newRow("a tab beside the item tag") << Lines(QStringList{"<SQL_ITEM>\t"} + a.mid(1) + b) << "B"
                                                   << "";
        QTest::newRow("item tag in lower case") << Lines(QStringList{"<sql_item>"} + a.mid(1)) << ""
                                                << "holds no query";
        QTest::newRow("item tag with a field on its line")
            << Lines(QStringList{"<SQL_ITEM><SQL_NAME>A</SQL_NAME>"} + a.mid(2) + b) << "B"
            << "";
        QTest::newRow("missing end tag") << Lines(a.mid(0, 3) + b) << "B"
                                         << "line 1 has no end tag";
        QTest::newRow("cut off inside an item") << Lines(a + b.mid(0, 2)) << "A"
                                                << "ends inside the query \"B\"";
        QTest::newRow("an item without a statement")
            << Lines(QStringList{"<SQL_ITEM>", "<SQL_NAME>A</SQL_NAME>", "</SQL_ITEM>"} + b) << "B"
            << "has no statement";
        QTest::newRow("end tag without an item") << Lines(QStringList{"</SQL_ITEM>"} + a) << "A"
                                                 << "";
        QTest::newRow("fields outside an item") << Lines(QStringList{"<SQL_NAME>X</SQL_NAME>"} + a) << "A"
                                                << "";
        QTest::newRow("lines ending in LF alone") << (a + b).join(QLatin1Char('\n')) << ""
                                                  << "LF alone";
        QTest::newRow("empty") << ""
                               << ""
                               << "The file is empty.";
    }
    void readsTheCatalogueLineByLine() {
        QFETCH(QString, text);
        QFETCH(QString, names);
        QFETCH(QString, problem);
        const clsSQLCatalogue catalogue = clsSQLCatalogue::FromText(text);
        QCOMPARE(Names(catalogue), names);
        if (problem.isEmpty()) {
            QCOMPARE(catalogue.Problems, QStringList());
        } else {
            QCOMPARE(catalogue.Problems.size(), 1);
            QVERIFY2(catalogue.Problems.first().contains(problem), qPrintable(catalogue.Problems.first()));
        }
    }

    void aLineFillsTheFirstFieldItNames_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("value");
        QTest::newRow("name") << "<SQL_NAME>Guests</SQL_NAME>"
                              << "SQL_NAME"
                              << "Guests";
        QTest::newRow("icon, not category") << "<SQL_CATEGORY_ICON>section1</SQL_CATEGORY_ICON>"
                                            << "SQL_CATEGORY_ICON"
                                            << "section1";
        QTest::newRow("category") << "<SQL_CATEGORY>Seating</SQL_CATEGORY>"
                                  << "SQL_CATEGORY"
                                  << "Seating";
        QTest::newRow("name before statement on one line") << "<SQL_NAME>N</SQL_NAME><SQL>SELECT 2</SQL>"
                                                           << "SQL_NAME"
                                                           << "N<SQL>SELECT 2</SQL>";
        QTest::newRow("date before description") << "<SQL_DESC>d</SQL_DESC><DATE_ADDED>x</DATE_ADDED>"
                                                 << "DATE_ADDED"
                                                 << "<SQL_DESC>d</SQL_DESC>x";
        QTest::newRow("tabs removed") << "<SQL_DESC>one\ttwo</SQL_DESC>"
                                      << "SQL_DESC"
                                      << "onetwo";
        QTest::newRow("escapes stay") << "<SQL>SELECT 1 WHERE 2 &gt; 1</SQL>"
                                      << "SQL"
                                      << "SELECT 1 WHERE 2 &gt; 1";
        QTest::newRow("text around the tags stays") << "Note: <SQL_DESC>d</SQL_DESC>!"
                                                    << "SQL_DESC"
                                                    << "Note: d!";
        QTest::newRow("no end tag") << "<SQL_NAME>open"
                                    << "SQL_NAME"
                                    << "open";
        QTest::newRow("inner blanks stay") << "  <SQL_NAME> A  B </SQL_NAME>  "
                                           << "SQL_NAME"
                                           << " A  B ";
    }
    void aLineFillsTheFirstFieldItNames() {
        QFETCH(QString, line);
        QFETCH(QString, field);
        QFETCH(QString, value);
        const clsSQLCatalogue catalogue =
            clsSQLCatalogue::FromText(Lines({"<SQL_ITEM>", "<SQL>SELECT 1</SQL>", line, "</SQL_ITEM>"}));
        QCOMPARE(catalogue.Items.size(), 1);
        const clsSQL_XML& item = catalogue.Items.first();
        const QHash<QString, QString> fields = {
            {"SQL_CATEGORY", item.SQL_CATEGORY}, {"SQL_CATEGORY_ICON", item.SQL_CATEGORY_ICON},
            {"SQL_NAME", item.SQL_NAME},         {"SQL_DESC", item.SQL_DESC},
            {"DATE_ADDED", item.DATE_ADDED},     {"SQL", item.SQL}};
        QCOMPARE(fields.value(field), value);
    }

    void readsWhatItCanOfDamagedBytes() {
        // Windows-1252: "Café" with é as the one byte E9.
        QByteArray latin = Lines(Item("Caf_")).toLatin1();
        latin.replace("Caf_", "Caf\xE9");
        const clsSQLCatalogue foreign = clsSQLCatalogue::FromBytes(latin);
        QCOMPARE(Names(foreign), QStringLiteral("Café"));
        QVERIFY(foreign.Problems.join(' ').contains("not UTF-8"));

        const clsSQLCatalogue marked = clsSQLCatalogue::FromBytes("\xEF\xBB\xBF" + Lines(Item("A")).toUtf8());
        QCOMPARE(Names(marked), QStringLiteral("A"));
        QCOMPARE(marked.Problems, QStringList());

        // Past the bound: the items within it stay, the one cut by it and all after it are left out.
        const QByteArray one = (Lines(Item("Ü", "SELECT '" + QString(200, 'x') + "'")) + "\r\n").toUtf8();
        QByteArray huge;
        while (huge.size() <= clsSQLCatalogue::MaxBytes + one.size())
            huge += one;
        const clsSQLCatalogue cut = clsSQLCatalogue::FromBytes(huge);
        QVERIFY(cut.Items.size() > 1000);
        QVERIFY(cut.Items.size() < huge.size() / one.size());
        QVERIFY2(cut.Problems.first().contains("Only the first 1,024 KB"),
                 qPrintable(cut.Problems.join('\n')));
        QVERIFY(!cut.Problems.join(' ').contains("UTF-8"));
    }

    void theAliasesGiveEdgesAndCaptions_data() {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<Cells>("header");
        const int w = 10080;
        QTest::newRow("number then caption") << QStringList{"1440 RSVP ID", "3000 Guest", "Notes"}
                                             << Cells{{1440, "RSVP ID"}, {3000, "Guest"}, {w, "Notes"}};
        QTest::newRow("no number") << QStringList{"Guest Name", "Notes"} << Cells{{0, "Name"}, {w, "Notes"}};
        QTest::newRow("no blank") << QStringList{"2000", "Guest", "Notes"}
                                  << Cells{{2000, ""}, {0, ""}, {w, "Notes"}};
        QTest::newRow("caption after the first blank, trimmed")
            << QStringList{"1500   Due  date ", "x"} << Cells{{1500, "Due  date"}, {w, "x"}};
        QTest::newRow("single quotes removed")
            << QStringList{"'2000 Guest'", "'Notes'"} << Cells{{2000, "Guest"}, {w, "Notes"}};
        QTest::newRow("last column keeps its whole name")
            << QStringList{"1000 A", "3000 Notes"} << Cells{{1000, "A"}, {w, "3000 Notes"}};
        QTest::newRow("one column") << QStringList{"5000 Only"} << Cells{{w, "5000 Only"}};
        QTest::newRow("no negative edge") << QStringList{"-500 A", "B"} << Cells{{0, "A"}, {w, "B"}};
    }
    void theAliasesGiveEdgesAndCaptions() {
        QFETCH(QStringList, names);
        QFETCH(Cells, header);
        QCOMPARE(clsRTFSQL::HeaderFromAliases(names, 10080), header);
    }

    void onlyASelectRuns_data() {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<bool>("runs");
        QTest::newRow("upper case") << "SELECT 1" << true;
        QTest::newRow("lower case") << "select 1" << true;
        QTest::newRow("leading blank") << " SELECT 1" << false;
        QTest::newRow("line break after the word") << "SELECT\r\n1" << false;
        QTest::newRow("the word alone") << "SELECT" << false;
        QTest::newRow("a common table expression") << "WITH x AS (SELECT 1) SELECT * FROM x" << false;
    }
    void onlyASelectRuns() {
        QFETCH(QString, sql);
        QFETCH(bool, runs);
        QCOMPARE(clsRTFSQL::IsSelectStatement(sql), runs);
    }

    void writesTheTableTheAliasesDescribe() {
        TestDatabase db;
        clsRTFSQL report;
        report.SQL = "SELECT CONTACT_ID AS \"1440 ID\", FIRST_NM AS 'First', -12.5 AS \"4000 Amount\", "
                     "NULL AS \"Nothing\" FROM CONTACT ORDER BY 1";
        report.SQL_NAME = "Both of us";
        report.SQL_DESC = "The couple {and} nobody else";
        gRTFMasterTemp().USE_RTF = true;
        const QString rtfFile = report.Build();
        QVERIFY(QFileInfo(rtfFile).fileName().startsWith("99_Custom_"));
        const QString rtf = QString::fromUtf8(RtfTestTools::FileBytes(rtfFile));
        QVERIFY(rtf.contains("\\cellx1440"));
        QVERIFY(rtf.contains("\\cellx4000"));
        QVERIFY(rtf.contains(QStringLiteral("\\cellx%1").arg(report.RTF.TABLE_WIDTH())));
        const QString text = RtfTestTools::DecodeRtf(rtf).Text;
        for (const char* expected : {"Both of us", "The couple {and} nobody else", "ID", "Nothing", "-12.5"})
            QVERIFY2(text.contains(QLatin1String(expected)), expected);
        QVERIFY(!text.contains("1440"));

        clsRTFSQL csv;
        csv.SQL = report.SQL;
        gRTFMasterTemp().USE_RTF = false;
        const QStringList lines = RtfTestTools::FileLines(csv.Build());
        gRTFMasterTemp().USE_RTF = true;
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0], QStringLiteral("\"ID\",,\"Amount\",\"Nothing\""));
        QVERIFY2(lines[1].endsWith(",\"-12.5\","), qPrintable(lines[1])); // a number, and a null as nothing
    }

    void aQueryThatFailsWritesNothing_data() {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("says");
        QTest::newRow("no such table") << "SELECT * FROM NOWHERE"
                                       << "no such table: NOWHERE";
        QTest::newRow("no such column") << "SELECT NOPE FROM CONTACT"
                                        << "no such column: NOPE";
        QTest::newRow("a second statement that deletes") << "SELECT 1; DELETE FROM CONTACT"
                                                         << "only one statement";
        QTest::newRow("a delete") << "DELETE FROM CONTACT"
                                  << "SQL must be a 'SELECT' statement.";
        QTest::newRow("fails on a later row")
            << "SELECT CONTACT_ID AS \"100 x\", "
               "CASE WHEN CONTACT_ID = 2 THEN json('{') ELSE 1 END AS y FROM CONTACT"
            << "malformed JSON";
    }
    void aQueryThatFailsWritesNothing() {
        QFETCH(QString, sql);
        QFETCH(QString, says);
        TestDatabase db;
        for (const bool rtf : {true, false}) {
            gRTFMasterTemp().USE_RTF = rtf;
            clsRTFSQL report;
            report.SQL = sql;
            const QString error = ErrorOf([&report] { report.Build(); });
            QVERIFY2(error.contains(says), qPrintable(error));
        }
        gRTFMasterTemp().USE_RTF = true;
        QCOMPARE(ReportFiles(), QStringList());
        QCOMPARE(db.Scalar("SELECT COUNT(*) FROM CONTACT"), QStringLiteral("2"));
    }

    void theShippedQueriesRunOnADemoWedding() {
        TestDatabase db;
        QString message;
        QVERIFY2(FillDemoWedding(150, 3, &message), qPrintable(message));
        const clsSQLCatalogue shipped = clsSQLCatalogue::Shipped();
        QCOMPARE(shipped.Problems, QStringList());
        QVERIFY(shipped.Items.size() >= 12);
        QSet<QString> names;
        for (const clsSQL_XML& item : shipped.Items) {
            const char* name = qPrintable(item.SQL_NAME);
            QVERIFY2(!names.contains(item.SQL_NAME), name);
            names.insert(item.SQL_NAME);
            QVERIFY2(!item.SQL_CATEGORY.isEmpty() && !item.SQL_DESC.isEmpty(), name);
            QVERIFY2(clsRTFSQL::IsSelectStatement(item.SQL), name);
            QStringList columns;
            modUserQuery::Run(
                gDB().DatabasePath, item.SQL, {}, [&columns](const QStringList& c) { columns = c; },
                [](QStringList&) {});
            QVERIFY2(columns.size() >= 2, name);
            // Every column but the last ends at its number, left to right, within a portrait A4 page.
            int edge = 0;
            for (const clsRTFSQL::HeaderCell& cell :
                 clsRTFSQL::HeaderFromAliases(columns, 9749).mid(0, columns.size() - 1)) {
                QVERIFY2(cell.CELLX > edge && cell.CELLX < 9749 - 1000, name);
                QVERIFY2(!cell.Caption.isEmpty(), name);
                edge = cell.CELLX;
            }
        }
        RegisterReportClasses();
        const QList<clsReportRoute> routes = modReportRunner::ShippedCustomRoutes();
        QCOMPARE(routes.size(), shipped.Items.size());
        QVERIFY(!modReportRunner::Write(routes.first(), {true, false, false, true}).isEmpty());
    }

    void aDownloadedCatalogueIsPreferredWhenItHoldsAQuery() {
        TestHome home;
        const int shipped = clsSQLCatalogue::Shipped().Items.size();
        QString problem;
        QVERIFY(!clsSQLCatalogue::Keep("<html>Not here</html>", &problem));
        QVERIFY2(problem.contains("holds no query"), qPrintable(problem));
        QCOMPARE(clsSQLCatalogue::Current().Items.size(), shipped);

        QVERIFY2(clsSQLCatalogue::Keep(Lines(Item("Newer")).toUtf8(), &problem), qPrintable(problem));
        QCOMPARE(Names(clsSQLCatalogue::Current()), QStringLiteral("Newer"));
        QVERIFY(!clsSQLCatalogue::Keep(QByteArray(), &problem));
        QCOMPARE(Names(clsSQLCatalogue::Current()), QStringLiteral("Newer"));

        // A kept file damaged by hand: the program's own catalogue, and why.
        QFile kept(clsSQLCatalogue::KeptPath());
        QVERIFY(kept.open(QIODevice::WriteOnly | QIODevice::Truncate));
        kept.write("garbage");
        kept.close();
        const clsSQLCatalogue current = clsSQLCatalogue::Current();
        QCOMPARE(current.Items.size(), shipped);
        QVERIFY(current.Problems.first().contains("holds no query"));
    }
};

QTEST_GUILESS_MAIN(tst_CustomSql)
#include "tst_CustomSql.moc"
