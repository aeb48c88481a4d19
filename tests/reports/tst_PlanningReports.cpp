#include "GuestReportTestData.h"
#include "core/modGeneral.h"
#include "reports/clsReportCatalogue.h"

#include <QtTest>
#include <memory>

using namespace GuestReportTestData;

namespace {

// Text a user may type anywhere: quotes, a backslash, braces, a line break and other scripts.
QString Typed() {
    return QStringLiteral("Say \"yes\" {twice} C:\\vows\r\nΑγάπη <b>");
}

// Three tasks in two time frames, one done; two notes, one with files.
void MakeChecklistAndNotes() {
    TestDatabase::Exec("DELETE FROM TASK");
    TestDatabase::Exec(
        "INSERT INTO TASK (TASK_ID, TASK_NM, TASK_GROUP_ID, DUE_DT, COMPLETED_FG, NOTES_TX, "
        "SORT_ORDER_NB) VALUES (1, 'Book the venue', 0, '2027-03-01', 'Y', NULL, 1), "
        "(2, ?, 0, '2027-01-15', 'N', ?, 2), (3, 'Order the cake', 5, '2026-12-01', 'N', NULL, 3)",
        {Typed(), Typed()});
    TestDatabase::Exec(
        "INSERT INTO NOTEBOOK (NOTEBOOK_ID, NOTEBOOK_DT, SUBJECT_TX, FILE_PATH_TX, NOTES_TX) VALUES "
        "(1, '2027-01-05 09:15:00', 'Venue visit', '/docs/contract.pdf;/docs/map.png', ?), "
        "(2, '2027-02-10 18:00:00', ?, NULL, NULL)",
        {Typed(), Typed()});
}

QString Group(int id) {
    return TestDatabase::Scalar("SELECT TASK_GROUP_TX FROM TASK_GROUP_DICT WHERE TASK_GROUP_ID = ?", {id});
}

QString Rows(const Shown& shown) {
    QStringList all;
    for (const QStringList& row : shown.Rows)
        all << row.join(" | ");
    return all.join("\n");
}

} // namespace

// The checklist and notebook reports, written through the registry and read back as a reader sees them.
class tst_PlanningReports : public QObject {
    Q_OBJECT

    std::unique_ptr<TestDatabase> db;

private slots:
    void initTestCase() {
        RegisterReportClasses();
        db = std::make_unique<TestDatabase>();
        MakeChecklistAndNotes();
        SetNowForTesting(QDateTime(QDate(2027, 5, 1), QTime(9, 30)));
    }
    void cleanupTestCase() {
        SetNowForTesting({});
        db.reset();
    }

    void catalogueOffersThem() {
        for (const int section : {clsReportCatalogue::Checklist, clsReportCatalogue::Notebook})
            for (const clsReportCatalogue::FilterRow& row : clsReportCatalogue::FilterRows(section))
                QVERIFY2(row.Available, qPrintable(row.ClassName + " " + row.FILTER));
    }

    void titleAndStatistics_data() {
        QTest::addColumn<QString>("className");
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("filterText");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("statistics");
        QTest::newRow("all tasks") << "clsRTFTask" << 0 << "All"
                                   << "All Tasks"
                                   << "Total Records: 3";
        QTest::newRow("open tasks") << "clsRTFTask" << 1 << "Open"
                                    << "Open Tasks"
                                    << "Total Records: 2";
        QTest::newRow("by due date") << "clsRTFTask" << 4 << "All"
                                     << "All Tasks by Due Date"
                                     << "Total Records: 3";
        QTest::newRow("notebook") << "clsRTFNotebook" << 0 << ""
                                  << "All Notes"
                                  << "2 notes";
    }
    void titleAndStatistics() {
        QFETCH(QString, className);
        QFETCH(int, filter);
        QFETCH(QString, filterText);
        QFETCH(QString, title);
        QFETCH(QString, statistics);
        const Shown rtf = Write(Route(className, filter, filterText), true);
        QVERIFY2(rtf.Error.isEmpty(), qPrintable(rtf.Error));
        QVERIFY2(rtf.Text.contains(title + "\r\n"), qPrintable(rtf.Text.left(400)));
        QVERIFY2(rtf.Text.contains(statistics + "\r\n"), qPrintable(rtf.Text.left(400)));
        QVERIFY(QFileInfo(rtf.File).fileName().startsWith(className == "clsRTFTask" ? "06_Tasks_"
                                                                                    : "10_Notebook_"));
    }

    void tasksByTimeFrameOrByDueDate_data() {
        QTest::addColumn<int>("filter");
        QTest::addColumn<bool>("useRtf");
        QTest::addColumn<QList<QStringList>>("rows");
        const QString typedRtf = Typed() + "\r\n" + Typed();
        QTest::newRow("time frames, rtf") << 0 << true
                                          << QList<QStringList>{{"#", "Task", "Due Date"},
                                                                {Group(0)},
                                                                {"2", typedRtf, "15-Jan-2027"},
                                                                {"1", "Book the venue", "01-Mar-2027"},
                                                                {Group(5)},
                                                                {"3", "Order the cake", "01-Dec-2026"}};
        QTest::newRow("due dates, rtf") << 4 << true
                                        << QList<QStringList>{{"#", "Task", "Due Date"},
                                                              {"3", "Order the cake", "01-Dec-2026"},
                                                              {"2", typedRtf, "15-Jan-2027"},
                                                              {"1", "Book the venue", "01-Mar-2027"}};
        QTest::newRow("due dates, csv")
            << 4 << false
            << QList<QStringList>{{"#", "Task", "Due Date", "Completed", "Notes"},
                                  {"3", "Order the cake", "01-Dec-2026", "No", ""},
                                  {"2", Typed(), "15-Jan-2027", "No", Typed()},
                                  {"1", "Book the venue", "01-Mar-2027", "Yes", ""}};
    }
    void tasksByTimeFrameOrByDueDate() {
        QFETCH(int, filter);
        QFETCH(bool, useRtf);
        QFETCH(QList<QStringList>, rows);
        const Shown shown = Write(Route("clsRTFTask", filter), useRtf);
        QVERIFY2(shown.Error.isEmpty(), qPrintable(shown.Error));
        QVERIFY2(shown.Rows == rows, qPrintable(Rows(shown)));
    }

    // Done: struck through in grey; open: plain; the notes in italics under the name.
    void aCompletedTaskIsStruckThrough() {
        const Shown rtf = Write(Route("clsRTFTask", 4), true);
        QVERIFY(rtf.RowLines[3].contains("\\strike "));
        QVERIFY(rtf.RowLines[3].contains("\\cf6"));
        QVERIFY(!rtf.RowLines[2].contains("\\strike"));
        QVERIFY(!rtf.RowLines[2].contains("\\cf6"));
        QVERIFY(rtf.RowLines[2].contains("\\i "));
    }

    void notesNewestFirstWithTheirFiles_data() {
        QTest::addColumn<bool>("useRtf");
        QTest::newRow("rtf") << true;
        QTest::newRow("csv") << false;
    }
    void notesNewestFirstWithTheirFiles() {
        QFETCH(bool, useRtf);
        const Shown shown = Write(Route("clsRTFNotebook"), useRtf);
        QVERIFY2(shown.Error.isEmpty(), qPrintable(shown.Error));
        if (!useRtf) {
            QCOMPARE(shown.Rows.size(), 3);
            QCOMPARE(shown.Rows[0], (QStringList{"Date", "Time", "Subject", "Notes", "Files"}));
            QCOMPARE(shown.Rows[1].value(0), QStringLiteral("10-Feb-2027"));
            QCOMPARE(shown.Rows[1].value(2), Typed());
            QCOMPARE(shown.Rows[2].mid(2),
                     (QStringList{"Venue visit", Typed(), "/docs/contract.pdf; /docs/map.png"}));
            return;
        }
        QCOMPARE(shown.Rows.size(), 4);
        QCOMPARE(shown.Rows[0], (QStringList{"Date", "Subject"}));
        QVERIFY2(shown.Rows[1].value(0).startsWith("10-Feb-2027 "), qPrintable(Rows(shown)));
        QCOMPARE(shown.Rows[1].value(1), Typed());
        QVERIFY(shown.RowLines[1].contains("\\b "));
        QCOMPARE(shown.Rows[2].value(1), QStringLiteral("Venue visit"));
        QCOMPARE(shown.Rows[3], QStringList{Typed() + "\r\nFiles: /docs/contract.pdf; /docs/map.png"});
    }
};

QTEST_MAIN(tst_PlanningReports)
#include "tst_PlanningReports.moc"
