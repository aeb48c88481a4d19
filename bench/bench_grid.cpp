// The list pages' grid on a large wedding: filling 10 000 rows and one keystroke of the search box,
// each measured up to the moment the grid has laid itself out and painted.
#include "shell/grid/modGrid.h"
#include "shell/grid/usrGrid.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <vector>

namespace {

constexpr int kRows = 10000;
constexpr int kGroups = 50;

const char* const kFirst[] = {"Ann", "Bob", "Carl", "Dora", "Eve", "Frank", "Gina", "Hugo", "Iris", "Jack"};
const char* const kLast[] = {"Baker", "Diaz", "Evans", "Fox", "Hale", "Ito", "Jones", "Khan", "Lopez", "Moss"};
const char* const kCities[] = {"Boston", "Denver", "Austin", "Chicago", "Seattle", "Miami", "Portland"};

struct Record {
    qint64 id;
    QString group, name, address, email, phone, city, notes;
};

const std::vector<Record>& Records() {
    static const std::vector<Record> records = [] {
        std::vector<Record> made;
        made.reserve(kRows);
        for (int i = 0; i < kRows; ++i) {
            const QString first = kFirst[i % 10];
            const QString last = kLast[(i / 10) % 10];
            made.push_back({i + 1, QStringLiteral("Table %1").arg(i % kGroups + 1, 2, 10, QLatin1Char('0')),
                            last + ", " + first + " " + QString::number(i),
                            QStringLiteral("%1 Main Street").arg(100 + i % 900),
                            i % 3 == 0 ? first.toLower() + "." + last.toLower() + "@example.org" : QString(),
                            QStringLiteral("(555) 01%1").arg(i % 100, 2, 10, QLatin1Char('0')),
                            kCities[i % 7], i % 5 == 0 ? QStringLiteral("Vegetarian; arrives Friday") : QString()});
        }
        return made;
    }();
    return records;
}

enum Column : int {
    ICO,
    INVITE_ICO,
    TITLE_TX,
    FULL_NM,
    ADDRESS_TX,
    NICK_NM,
    EMAIL_TX,
    PHONE_TX,
    AB,
    FRIEND_OF_TX,
    ROLE_TX,
    GENDER_FG,
    OUT_OF_TOWNER_FG,
    GUEST_OF,
    CITY
};

QList<clsGridColumn> Columns() {
    return {clsGridColumn("ICO", "", 20).OfKind(GridColumnKind::Icon),
            clsGridColumn("INVITE_ICO", "", 20).OfKind(GridColumnKind::Icon),
            clsGridColumn("TITLE_TX", "Title", 50),
            clsGridColumn("FULL_NM", "Name", 180),
            clsGridColumn("ADDRESS_TX", "Address", 200),
            clsGridColumn("NICK_NM", "Nickname", 80),
            clsGridColumn("EMAIL_TX", "E-mail", 180),
            clsGridColumn("PHONE_TX", "Phone(s)", 100),
            clsGridColumn("AB", "A-B", 40),
            clsGridColumn("FRIEND_OF_TX", "Friend of", 80),
            clsGridColumn("ROLE_TX", "Role", 80),
            clsGridColumn("GENDER_FG", "Gender", 60),
            clsGridColumn("OUT_OF_TOWNER_FG", "Out of Towner", 80),
            clsGridColumn("GUEST_OF", "Guest of", 120),
            clsGridColumn("CITY", "City", 100)};
}

// Grouped as the attendees by table, or flat as the contacts.
void Fill(usrGrid& grid, bool grouped = true) {
    clsGridFill fill(*grid.Model());
    for (const Record& r : Records())
        (grouped ? fill.Group(r.group) : fill).Row(r.id).Icon(ICO, FileIconPhoto).Icon(INVITE_ICO, FileIconPdf)
            .Set(TITLE_TX, "Mr.").Set(FULL_NM, r.name).Set(ADDRESS_TX, r.address).Set(EMAIL_TX, r.email)
            .Set(PHONE_TX, r.phone).Set(AB, "A").Set(FRIEND_OF_TX, "Bride").Set(GENDER_FG, "Male")
            .Set(OUT_OF_TOWNER_FG, "Local").Set(CITY, r.city).Notes(r.notes);
}

std::unique_ptr<usrGrid> ShownGrid() {
    auto grid = std::make_unique<usrGrid>();
    grid->resize(1200, 800);
    grid->SetColumns(Columns());
    grid->Model()->SetImages(FileIcons());
    grid->show();
    QApplication::processEvents();
    return grid;
}

// Lets the grid lay itself out and paint, as it would before the user sees the result.
void Settle(usrGrid& grid) {
    grid.viewport()->repaint();
    QApplication::processEvents();
}

void BM_GridFill(benchmark::State& state) {
    Records();
    auto grid = ShownGrid();
    for (auto _ : state) {
        Fill(*grid);
        Settle(*grid);
    }
    state.counters["rows"] = grid->Model()->FlatRowCount();
}

void BM_GridSearchKeystroke(benchmark::State& state) {
    auto grid = ShownGrid();
    Fill(*grid, state.range(0) != 0);
    Settle(*grid);
    // Typing "bak", deleting it again: each step is one keystroke.
    const QString steps[] = {"b", "ba", "bak", "ba", "b", ""};
    size_t step = 0;
    int count = 0;
    for (auto _ : state) {
        GridSearch(grid.get(), steps[step++ % 6], grid->Model()->columnCount(), count);
        Settle(*grid);
    }
    benchmark::DoNotOptimize(count);
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::RegisterBenchmark("fill 10 000 rows", BM_GridFill)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("one search keystroke on 10 000 rows", BM_GridSearchKeystroke)
        ->ArgName("grouped")->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
