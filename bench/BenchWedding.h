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
