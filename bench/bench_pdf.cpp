// vowren-bench-pdf: reports as PDF on a demo wedding of 10 000 guests, laid out and painted on the
// offscreen platform: the guest list of some 250 pages, and the statistics on one page (beside it as
// RTF: most of its time is the counting).
#include "BenchWedding.h"
#include "pdf/clsPdfDialect.h"
#include "reports/clsReportCatalogue.h"
#include "reports/modReportRegistry.h"
#include "reports/modReportRunner.h"

#include <QFile>
#include <QGuiApplication>

namespace {

using C = clsReportCatalogue;

// Writes the report of the section's filter row as PDF, or as RTF for the comparison.
void Write(benchmark::State& state, int section, int filterRow, bool pdf = true) {
    const QList<C::FilterRow> rows = C::FilterRows(section);
    const clsReportRoute route = C::Route(section, rows, filterRow);
    const modReportRunner::Output output{true, pdf, true, false};
    QString file;
    for (auto _ : state) {
        file = modReportRunner::Write(route, output);
        if (file.isEmpty())
            state.SkipWithError("the report was not written");
        state.PauseTiming();
        QFile::remove(file); // the next run writes the same name anew
        state.ResumeTiming();
    }
    state.SetLabel(pdf ? "PDF" : "RTF");
}

void BM_PdfContactsReport(benchmark::State& state) {
    Write(state, C::Contacts, 0);
}
BENCHMARK(BM_PdfContactsReport)->Unit(benchmark::kMillisecond);

void BM_StatisticsReport(benchmark::State& state) {
    Write(state, C::Statistics, 0, state.range(0) == 1);
}
BENCHMARK(BM_StatisticsReport)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    return RunOnDemoWedding(argc, argv, "vowren-bench-pdf", [](QString*) {
        RegisterReportClasses();
        clsPdfDialect::Register();
        return true;
    });
}
