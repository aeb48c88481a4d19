#pragma once

#include "core/ShowMessage.h"
#include "core/clsDB.h"
#include "core/modSubMain.h"
#include "startup/modDemoWedding.h"
#include "startup/modStartup.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <functional>
#include <memory>

// A data root of its own for the run, gone afterwards: nothing opened on the desktop, messages kept, the
// subsystems registered.
struct BenchHome {
    QTemporaryDir Folder;
    BenchHome() {
        qputenv("VOWREN_HOME", Folder.path().toUtf8());
        qputenv("VOWREN_NO_OPEN", "1");
        SetMessageSink(std::make_unique<clsCapturingMessageSink>());
        modStartup::RegisterSubsystems();
    }
};

// What the screen benchmarks share, once the application object stands: a temporary data root with a
// 10 000-guest demo wedding (and whatever the program adds to it), then every benchmark asked for.
inline int RunOnDemoWedding(int& argc, char** argv, const char* program,
                            const std::function<bool(QString* message)>& prepare = {}) {
    BenchHome home;
    QString message;
    if (!modSubMain::Start(&message) || !FillDemoWedding(10000, 1, &message) ||
        (prepare && !prepare(&message))) {
        std::fprintf(stderr, "%s: %s\n", program, qPrintable(message));
        return 1;
    }
    std::printf("%s\n", qPrintable(message));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    gDB().CloseConnection();
    return 0;
}

// Grows the wedding's timelines to `entries` entries spread over its events, a quarter of an hour each,
// with the day's hours wrapping; one transaction.
inline bool GrowTimelineEntries(int entries, QString* message) {
    try {
        clsDB& db = gDB();
        db.Execute(QStringLiteral("BEGIN IMMEDIATE"));
        const QStringList events = [&db] {
            QStringList keys;
            const clsRecordset rs = db.Execute(QStringLiteral("SELECT EVENT_ID FROM EVENT"));
            for (int row = 0; row < rs.RowCount(); ++row)
                keys << rs.Row(row).value(0);
            return keys;
        }();
        const int start = db.Execute(QStringLiteral("SELECT COUNT(*) FROM TIMELINE")).Scalar().toInt();
        const int first = db.Execute(QStringLiteral("SELECT IFNULL(MAX(TIMELINE_ID), 0) FROM TIMELINE")).Scalar().toInt();
        for (int i = start; i < entries && !events.isEmpty(); ++i) {
            const int minutes = (i * 15) % (24 * 60);
            db.Execute(QStringLiteral("INSERT INTO TIMELINE (TIMELINE_ID, TIMELINE_START_DT, TIMELINE_END_DT, "
                                      "TIMELINE_DESC, CONTACT_NM, EVENT_ID) VALUES (?, datetime('2027-06-12', ?), "
                                      "datetime('2027-06-12', ?), ?, 'Everyone', ?)"),
                       {first + i - start + 1, QStringLiteral("+%1 minutes").arg(minutes),
                        QStringLiteral("+%1 minutes").arg(minutes + 15), QStringLiteral("Entry %1").arg(i + 1),
                        events.at(i % events.size())});
        }
        db.Execute(QStringLiteral("COMMIT"));
        return true;
    } catch (const clsDbError& e) {
        *message = e.Message();
        return false;
    }
}

// Grows the checklist to `tasks` open tasks, each with a due date; one transaction.
inline bool GrowTasksWithDueDates(int tasks, QString* message) {
    try {
        clsDB& db = gDB();
        db.Execute(QStringLiteral("BEGIN IMMEDIATE"));
        const int start = db.Execute(QStringLiteral("SELECT COUNT(*) FROM TASK")).Scalar().toInt();
        const int first = db.Execute(QStringLiteral("SELECT IFNULL(MAX(TASK_ID), 0) FROM TASK")).Scalar().toInt();
        for (int i = start; i < tasks; ++i)
            db.Execute(QStringLiteral("INSERT INTO TASK (TASK_ID, TASK_NM, TASK_GROUP_ID, DUE_DT, COMPLETED_FG, "
                                      "SORT_ORDER_NB) VALUES (?, ?, ?, date('2026-12-01', ?), 'N', ?)"),
                       {first + i - start + 1, QStringLiteral("Task %1").arg(i + 1), i % 10,
                        QStringLiteral("+%1 days").arg(i % 190), first + i - start + 1});
        db.Execute(QStringLiteral("COMMIT"));
        return true;
    } catch (const clsDbError& e) {
        *message = e.Message();
        return false;
    }
}
