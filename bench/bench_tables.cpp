// The table layout on a 10 000-guest demo wedding, offscreen: opening the page until the list, the tree
// and the floor are filled and painted; a drop of ten attendees on a table, saved and repainted; one
// frame of a table being dragged; and the picture of the layout.
#include "BenchWedding.h"
#include "core/clsDB.h"
#include "seating/modSeating.h"
#include "seating/ui/frmMain_04_Attendees_Tables.h"
#include "seating/ui/usrDiningTable.h"

#include <QApplication>
#include <QGraphicsView>
#include <QPixmap>
#include <QUndoStack>
#include <benchmark/benchmark.h>

namespace {

// The room of a large wedding holds at least this many tables.
constexpr int kTables = 500;
QString gEmptyTable;

QPixmap Paint(frmMain_04_Attendees_Tables& page) {
    return page.FloorView()->viewport()->grab();
}

void BM_TablesPageOpen(benchmark::State& state) {
    for (auto _ : state) {
        frmMain_04_Attendees_Tables page;
        page.resize(1280, 720);
        QPixmap painted = page.grab();
        benchmark::DoNotOptimize(painted);
    }
}
BENCHMARK(BM_TablesPageOpen)->Unit(benchmark::kMillisecond);

// Ten attendees dropped on an empty table, saved and the floor repainted; the undo between rounds is
// not counted.
void BM_TablesDropTen(benchmark::State& state) {
    frmMain_04_Attendees_Tables page;
    page.resize(1280, 720);
    page.show();
    const QStringList ten = page.UnseatedIds().mid(0, 10);
    for (auto _ : state) {
        if (!page.SeatGuests(gEmptyTable, ten)) {
            state.SkipWithError("the ten were not seated");
            break;
        }
        QPixmap painted = Paint(page);
        benchmark::DoNotOptimize(painted);
        state.PauseTiming();
        page.UndoStack()->undo();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_TablesDropTen)->Unit(benchmark::kMillisecond);

// One frame of a drag: the table one pixel on, and the floor repainted.
void BM_TablesDragFrame(benchmark::State& state) {
    frmMain_04_Attendees_Tables page;
    page.resize(1280, 720);
    page.show();
    usrDiningTable* table = page.TableItem(gEmptyTable);
    int step = 0;
    for (auto _ : state) {
        table->setPos(table->pos() + QPointF(++step % 2 ? 1 : -1, 0));
        QPixmap painted = Paint(page);
        benchmark::DoNotOptimize(painted);
    }
}
BENCHMARK(BM_TablesDragFrame)->Unit(benchmark::kMillisecond);

void BM_TablesLayoutPicture(benchmark::State& state) {
    frmMain_04_Attendees_Tables page;
    for (auto _ : state) {
        if (!page.WriteLayoutPicture())
            state.SkipWithError("the picture was not written");
    }
}
BENCHMARK(BM_TablesLayoutPicture)->Unit(benchmark::kMillisecond);

clsDINING_TABLE NewTable(int number, int n) {
    clsDINING_TABLE table;
    table.DINING_TABLE_NB = QString::number(number);
    table.SEATS_NB = QStringLiteral("12");
    table.POS_X = QString::number(600 + (n % 8) * 1500);
    table.POS_Y = QString::number(1800 + (n / 8) * 1500);
    table.DINING_TABLE_TYPE_ID = QStringLiteral("1");
    table.Save(true);
    return table;
}

// Enough tables for a large room, one more that is empty, and twenty attendees not yet seated.
bool PrepareRoom(QString* message) {
    return RecordIO::Attempt([&] {
        const QList<clsDINING_TABLE> demo = clsDINING_TABLE::OpenRecords();
        int n = int(demo.size());
        int number = demo.isEmpty() ? 0 : demo.last().DINING_TABLE_NB.toInt();
        while (n < kTables)
            NewTable(++number, n++);
        gEmptyTable = NewTable(++number, n++).DINING_TABLE_ID;
        QStringList seated;
        const clsRecordset rs = gDB().Execute(QStringLiteral(
            "SELECT CONTACT_ID FROM CONTACT WHERE DINING_TABLE_ID Is Not Null AND CONTACT_ID > 2 LIMIT 20"));
        for (int row = 0; row < rs.RowCount(); ++row)
            seated << rs.Row(row).value(0);
        modSeating::Unseat(seated);
        *message += QStringLiteral(" The room: %1 tables, one of them empty for the drop.").arg(n);
    });
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return RunOnDemoWedding(argc, argv, "vowren-bench-tables", PrepareRoom);
}
