// vowren-bench-widgets: the song dialog on a folder of 10 000 files (a tenth of them no songs), offscreen:
// listing the folder, and one keystroke of the search that narrows the list.
#include "BenchWedding.h"
#include "widgets/ui/frmSongAdd.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>

namespace {

constexpr int kFiles = 10000;

// A folder of empty files named like songs, and some pictures among them.
const QString& MusicFolder() {
    static QTemporaryDir folder;
    static const bool filled = [] {
        for (int i = 0; i < kFiles; ++i) {
            QFile file(folder.filePath(QStringLiteral("Track %1.%2")
                                           .arg(i, 5, 10, QLatin1Char('0'))
                                           .arg(i % 10 == 0 ? "jpg" : "mp3")));
            if (!file.open(QIODevice::WriteOnly))
                return false;
        }
        return true;
    }();
    static const QString path = filled ? folder.path() : QString();
    return path;
}

void BM_SongFolderListed(benchmark::State& state) {
    frmSongAdd dialog;
    for (auto _ : state)
        dialog.SetFolder(MusicFolder());
    state.counters["files"] = kFiles;
}
BENCHMARK(BM_SongFolderListed)->Unit(benchmark::kMillisecond);

void BM_SongSearchKeystroke(benchmark::State& state) {
    frmSongAdd dialog;
    dialog.SetFolder(MusicFolder());
    auto* search = dialog.findChild<QLineEdit*>(QStringLiteral("usrSearch"));
    for (auto _ : state) {
        search->setText(QStringLiteral("Track 01"));
        search->setText(QStringLiteral("Track 0"));
    }
    state.counters["keystrokes"] = benchmark::Counter(2.0 * double(state.iterations()));
}
BENCHMARK(BM_SongSearchKeystroke)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return RunOnDemoWedding(argc, argv, "vowren-bench-widgets");
}
