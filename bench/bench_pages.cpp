// The guest list pages on a 10 000-guest demo wedding, offscreen: opening the Contacts page until its
// grid is filled and painted, and one keystroke in its search box.
#include "BenchWedding.h"
#include "core/clsDB.h"
#include "guests/ui/frmMain_01_Contacts.h"
#include "shell/controls/usrSearch.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPixmap>
#include <benchmark/benchmark.h>

namespace {

void BM_ContactsPageOpen(benchmark::State& state) {
    for (auto _ : state) {
        frmMain_01_Contacts page;
        page.resize(1280, 720);
        page.LoadNow();
        QPixmap painted = page.grab();
        benchmark::DoNotOptimize(painted);
    }
}
BENCHMARK(BM_ContactsPageOpen)->Unit(benchmark::kMillisecond);

// Each round types one more letter of a name that matches few guests, then takes it back, and the
// grid is painted after each: two keystrokes a round.
void BM_ContactsPageSearchKeystroke(benchmark::State& state) {
    frmMain_01_Contacts page;
    page.resize(1280, 720);
    page.LoadNow();
    QLineEdit* box = page.SearchBox()->LineEdit();
    box->setText(QStringLiteral("Carte"));
    for (auto _ : state) {
        box->setText(QStringLiteral("Carter"));
        QPixmap narrowed = page.grab();
        box->setText(QStringLiteral("Carte"));
        QPixmap widened = page.grab();
        benchmark::DoNotOptimize(narrowed);
        benchmark::DoNotOptimize(widened);
    }
    state.counters["keystrokes"] = benchmark::Counter(2.0 * double(state.iterations()));
}
BENCHMARK(BM_ContactsPageSearchKeystroke)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return RunOnDemoWedding(argc, argv, "vowren-bench-pages");
}
