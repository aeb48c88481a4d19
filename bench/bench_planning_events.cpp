// The events and timelines on the 10 000-guest demo wedding grown to 2 000 timeline entries and 2 000
// open tasks, offscreen: each page opened until filled and painted, and the calendar file of everything.
#include "BenchPages.h"
#include "BenchWedding.h"
#include "planning/modCalendarExport.h"
#include "planning/ui/frmMain_09_Timelines.h"
#include "planning/ui/frmMain_11_Events.h"

#include <QApplication>
#include <QPixmap>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {


void BM_EventsPageOpen(benchmark::State& state) {
    OpenAndPaint<frmMain_11_Events>(state);
}
BENCHMARK(BM_EventsPageOpen)->Unit(benchmark::kMillisecond);

void BM_TimelinesPageOpen(benchmark::State& state) {
    OpenAndPaint<frmMain_09_Timelines>(state);
}
BENCHMARK(BM_TimelinesPageOpen)->Unit(benchmark::kMillisecond);

void BM_CalendarExport(benchmark::State& state) {
    QTemporaryDir folder;
    int written = 0;
    for (auto _ : state) {
        QString error;
        written = modCalendarExport::Export(folder.filePath(QStringLiteral("wedding.ics")), &error);
        if (written < 0)
            state.SkipWithError(qPrintable(error));
    }
    state.counters["entries"] = written;
}
BENCHMARK(BM_CalendarExport)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return RunOnDemoWedding(argc, argv, "vowren-bench-planning-events", [](QString* message) {
        return GrowTimelineEntries(2000, message) && GrowTasksWithDueDates(2000, message);
    });
}
