// The checklist and the notebook on the 10 000-guest demo wedding grown to 2 000 tasks and 1 000 notes,
// offscreen: each page opened until its grid is filled and painted, and one tick of a task until the
// grid is painted again.
#include "BenchPages.h"
#include "BenchWedding.h"
#include "core/clsDB.h"
#include "planning/ui/frmMain_06_Checklist.h"
#include "planning/ui/frmMain_10_Notebook.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <benchmark/benchmark.h>

namespace {

constexpr int kTasks = 2000;
constexpr int kNotes = 1000;

// Tasks in every time frame (a third of them done, a fifth with notes) and notes an hour apart (a
// quarter with files), on top of what the demo wedding holds.
bool GrowChecklistAndNotebook(QString* message) {
    try {
        clsTransaction tx(gDB());
        const int tasks = gDB().Execute(QStringLiteral("SELECT COUNT(*) FROM TASK")).Scalar().toInt();
        gDB().Execute(
            QStringLiteral(
                "INSERT INTO TASK (TASK_ID, TASK_NM, TASK_GROUP_ID, DUE_DT, COMPLETED_FG, NOTES_TX, "
                "SORT_ORDER_NB) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
                "SELECT (SELECT ifnull(max(TASK_ID), 0) FROM TASK) + i, 'Task number ' || i, i % 11, "
                "date('2027-01-01', '+' || (i % 300) || ' days'), CASE WHEN i % 3 = 0 THEN 'Y' ELSE 'N' END, "
                "CASE WHEN i % 5 = 0 THEN 'Remember the details of task ' || i END, "
                "(SELECT ifnull(max(SORT_ORDER_NB), 0) FROM TASK) + i FROM n"),
            {kTasks - tasks});
        const int notes = gDB().Execute(QStringLiteral("SELECT COUNT(*) FROM NOTEBOOK")).Scalar().toInt();
        gDB().Execute(
            QStringLiteral(
                "INSERT INTO NOTEBOOK (NOTEBOOK_ID, NOTEBOOK_DT, SUBJECT_TX, FILE_PATH_TX, NOTES_TX) "
                "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ?) "
                "SELECT (SELECT ifnull(max(NOTEBOOK_ID), 0) FROM NOTEBOOK) + i, "
                "datetime('2026-01-01 08:00:00', '+' || i || ' hours'), 'Note number ' || i, "
                "CASE WHEN i % 4 = 0 THEN '/home/couple/Documents/quote-' || i || '.pdf' END, "
                "'What was said on call ' || i FROM n"),
            {kNotes - notes});
        tx.Commit();
        *message = QStringLiteral("%1 tasks, %2 notes").arg(kTasks).arg(kNotes);
        return true;
    } catch (const clsDbError& e) {
        *message = e.Message();
        return false;
    }
}


void BM_ChecklistPageOpen(benchmark::State& state) {
    OpenAndPaint<frmMain_06_Checklist>(state);
}
BENCHMARK(BM_ChecklistPageOpen)->Unit(benchmark::kMillisecond);

void BM_NotebookPageOpen(benchmark::State& state) {
    OpenAndPaint<frmMain_10_Notebook>(state);
}
BENCHMARK(BM_NotebookPageOpen)->Unit(benchmark::kMillisecond);

// One tick: the row painted ticked, the database written, the counts of the panel brought up to date.
void BM_ChecklistTick(benchmark::State& state) {
    frmMain_06_Checklist page;
    page.resize(1280, 720);
    page.show();
    page.LoadNow();
    QApplication::processEvents();
    const qint64 key = page.Grid()->Model()->KeyAt(page.Grid()->Model()->FlatRow(2));
    for (auto _ : state)
        page.ToggleCompleted(key);
}
BENCHMARK(BM_ChecklistTick)->Unit(benchmark::kMillisecond);

// Notes the moment the first paint of a widget after Start has ended.
class clsPaintClock : public QObject {
public:
    void Start() {
        mClock.start();
        mPainted = -1;
    }
    qint64 PaintedNs() const { return mPainted; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::Paint || mInside)
            return false;
        mInside = true;
        QCoreApplication::sendEvent(watched, event);
        mInside = false;
        if (mPainted < 0)
            mPainted = mClock.nsecsElapsed();
        return true;
    }

private:
    QElapsedTimer mClock;
    qint64 mPainted = -1;
    bool mInside = false;
};

// What the user waits for: from the click's call to the end of the paint that shows the row ticked.
void BM_ChecklistTickPainted(benchmark::State& state) {
    frmMain_06_Checklist page;
    page.resize(1280, 720);
    page.show();
    page.LoadNow();
    QApplication::processEvents();
    const qint64 key = page.Grid()->Model()->KeyAt(page.Grid()->Model()->FlatRow(2));
    clsPaintClock clock;
    page.Grid()->viewport()->installEventFilter(&clock);
    for (auto _ : state) {
        clock.Start();
        page.ToggleCompleted(key);
        state.SetIterationTime(double(clock.PaintedNs()) / 1e9);
    }
}
BENCHMARK(BM_ChecklistTickPainted)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return RunOnDemoWedding(argc, argv, "vowren-bench-planning-checklist", GrowChecklistAndNotebook);
}
