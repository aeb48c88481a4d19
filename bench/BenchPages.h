#pragma once

#include <QPixmap>
#include <benchmark/benchmark.h>

// A page opened anew each round until it is filled and painted. `shown` for the pages whose pictures are
// laid out only once the page is on screen.
template <class Page> void OpenAndPaint(benchmark::State& state, bool shown = false) {
    for (auto _ : state) {
        Page page;
        page.resize(1280, 720);
        if (shown)
            page.show();
        page.LoadNow();
        QPixmap painted = page.grab();
        benchmark::DoNotOptimize(painted);
    }
}
