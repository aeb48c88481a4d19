// vowren-bench: the start routine, the guest list, relabelling every invitation, the filter counts and
// the delete of a large selection, measured on a demo wedding of 10 000 guests made once in a temporary
// data root. Beside each, a baseline reads the same rows with bare sqlite3 calls, to show what the
// program's layers cost.
#include "BenchWedding.h"
#include "core/ShowMessage.h"
#include "core/clsDB.h"
#include "core/modSubMain.h"
#include "guests/clsCONTACT.h"
#include "guests/clsINVITE.h"
#include "reports/clsReportCatalogue.h"
#include "reports/modReportRegistry.h"
#include "reports/modReportRunner.h"
#include "startup/modDemoWedding.h"
#include "startup/modStartup.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <sqlite3.h>
#include <string>
#include <vector>

namespace {

QString gPath; // the database file of the demo wedding

// The rows of a statement as text, the way a bare reader would keep them.
std::vector<std::vector<std::string>> ReadAll(sqlite3* db, const char* sql, const char* bind = nullptr) {
    std::vector<std::vector<std::string>> rows;
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(db));
    if (bind)
        sqlite3_bind_text(stmt, 1, bind, -1, SQLITE_TRANSIENT);
    const int columns = sqlite3_column_count(stmt);
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        std::vector<std::string> row;
        row.reserve(static_cast<size_t>(columns));
        for (int c = 0; c < columns; ++c) {
            const unsigned char* text = sqlite3_column_text(stmt, c);
            row.emplace_back(text ? reinterpret_cast<const char*>(text) : "");
        }
        rows.push_back(std::move(row));
    }
    sqlite3_finalize(stmt);
    return rows;
}

sqlite3* OpenBare() {
    sqlite3* db = nullptr;
    sqlite3_open_v2(gPath.toUtf8().constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_exec(db, "PRAGMA foreign_keys = ON", nullptr, nullptr, nullptr);
    return db;
}

// The guest list's statement: every person with what their row shows.
const char* const kContactSql =
    "SELECT CONTACT.*, ROLE_DICT.ROLE_TX, DINING_TABLE.DINING_TABLE_NB, DINING_TABLE.DINING_TABLE_NM, "
    "MEAL_DICT.MEAL_TX, CONTACT_1.FIRST_NM, CONTACT_1.LAST_NM, INVITE.INVITE_RSVP_ID, INVITE.DISPLAY_AS_TX, "
    "INVITE.OUTER_ENVELOPE_TX, INVITE.INNER_ENVELOPE_TX, INVITE.INVITE_SENT_FG, INVITE.RSVP_RECEIVED_FG, "
    "FLIGHT.FLIGHT_NB, FLIGHT.FLIGHT_NM, FLIGHT.DEPARTS_AIRPORT_NM, FLIGHT.DEPARTS_DT, "
    "FLIGHT.ARRIVES_AIRPORT_NM, "
    "FLIGHT.ARRIVES_DT, HOTEL.HOTEL_NB, HOTEL.HOTEL_NM FROM CONTACT "
    "LEFT JOIN CONTACT AS CONTACT_1 ON CONTACT_1.CONTACT_ID = CONTACT.GUEST_OF_ID "
    "LEFT JOIN ROLE_DICT ON ROLE_DICT.ROLE_ID = CONTACT.ROLE_ID "
    "LEFT JOIN MEAL_DICT ON MEAL_DICT.MEAL_ID = CONTACT.MEAL_ID "
    "LEFT JOIN DINING_TABLE ON DINING_TABLE.DINING_TABLE_ID = CONTACT.DINING_TABLE_ID "
    "LEFT JOIN INVITE ON INVITE.INVITE_ID = CONTACT.INVITE_ID "
    "LEFT JOIN FLIGHT ON FLIGHT.FLIGHT_ID = CONTACT.FLIGHT_ID LEFT JOIN HOTEL ON HOTEL.HOTEL_ID = "
    "CONTACT.HOTEL_ID "
    "ORDER BY CONTACT.LAST_NM COLLATE NOCASE, CONTACT.FIRST_NM COLLATE NOCASE, CONTACT.MIDDLE_NM COLLATE "
    "NOCASE";

// ---- Start -----------------------------------------------------------------------------------------

void BM_Start(benchmark::State& state) {
    QString message;
    for (auto _ : state) {
        if (!modSubMain::Start(&message))
            state.SkipWithError(qPrintable(message));
    }
}
BENCHMARK(BM_Start)->Unit(benchmark::kMillisecond);

// Open the file, read the couple and the wedding day, as a start must at the least.
void BM_Start_BareSqlite(benchmark::State& state) {
    for (auto _ : state) {
        sqlite3* db = OpenBare();
        auto couple = ReadAll(db, "SELECT * FROM CONTACT WHERE CONTACT_ID IN (1, 2)");
        auto wedding = ReadAll(db, "SELECT * FROM EVENT WHERE EVENT_ID = 1");
        auto settings = ReadAll(db, "SELECT * FROM VOWREN");
        benchmark::DoNotOptimize(couple.size() + wedding.size() + settings.size());
        sqlite3_close(db);
    }
}
BENCHMARK(BM_Start_BareSqlite)->Unit(benchmark::kMillisecond);

// ---- The guest list --------------------------------------------------------------------------------

void BM_ContactOpenRecords(benchmark::State& state) {
    for (auto _ : state) {
        const QList<clsCONTACT> list = clsCONTACT::OpenRecords(0);
        benchmark::DoNotOptimize(list.size());
        state.counters["rows"] = static_cast<double>(list.size());
    }
}
BENCHMARK(BM_ContactOpenRecords)->Unit(benchmark::kMillisecond);

void BM_ContactOpenRecords_BareSqlite(benchmark::State& state) {
    sqlite3* db = OpenBare();
    for (auto _ : state) {
        const auto rows = ReadAll(db, kContactSql);
        benchmark::DoNotOptimize(rows.size());
        state.counters["rows"] = static_cast<double>(rows.size());
    }
    sqlite3_close(db);
}
BENCHMARK(BM_ContactOpenRecords_BareSqlite)->Unit(benchmark::kMillisecond);

// ---- Relabelling every invitation --------------------------------------------------------------------

// Each invitation reads its people again, writes its three texts and is saved; all in one transaction
// that is rolled back, so every round starts from the same file.
void BM_RelabelAllInvites(benchmark::State& state) {
    for (auto _ : state) {
        clsTransaction tx(gDB());
        QList<clsINVITE> invites = clsINVITE::OpenRecords(0, false);
        for (clsINVITE& invite : invites) {
            invite.RefreshLabeling(true, false);
            invite.Save(false);
        }
        state.counters["invites"] = static_cast<double>(invites.size());
    }
}
BENCHMARK(BM_RelabelAllInvites)->Unit(benchmark::kMillisecond);

void BM_RelabelAllInvites_BareSqlite(benchmark::State& state) {
    sqlite3* db = OpenBare();
    for (auto _ : state) {
        sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
        const auto invites = ReadAll(db, "SELECT INVITE_ID FROM INVITE ORDER BY INVITE_ID");
        sqlite3_stmt* update = nullptr;
        sqlite3_prepare_v2(
            db,
            "UPDATE INVITE SET DISPLAY_AS_TX = ?, OUTER_ENVELOPE_TX = ?, INNER_ENVELOPE_TX = ? "
            "WHERE INVITE_ID = ?",
            -1, &update, nullptr);
        for (const auto& invite : invites) {
            const auto people = ReadAll(db,
                                        "SELECT TITLE_TX, FIRST_NM, LAST_NM FROM CONTACT WHERE INVITE_ID = ? "
                                        "ORDER BY SORT_ORDER_NB",
                                        invite[0].c_str());
            std::string display, outer, inner;
            for (const auto& p : people) {
                display += p[2] + ", " + p[1] + "; ";
                outer += p[0] + " " + p[1] + " " + p[2] + " and ";
                inner += p[1] + " and ";
            }
            sqlite3_bind_text(update, 1, display.c_str(), -1, SQLITE_TRANSIENT);
            sqlite3_bind_text(update, 2, outer.c_str(), -1, SQLITE_TRANSIENT);
            sqlite3_bind_text(update, 3, inner.c_str(), -1, SQLITE_TRANSIENT);
            sqlite3_bind_text(update, 4, invite[0].c_str(), -1, SQLITE_TRANSIENT);
            sqlite3_step(update);
            sqlite3_reset(update);
        }
        sqlite3_finalize(update);
        sqlite3_exec(db, "ROLLBACK", nullptr, nullptr, nullptr);
        state.counters["invites"] = static_cast<double>(invites.size());
    }
    sqlite3_close(db);
}
BENCHMARK(BM_RelabelAllInvites_BareSqlite)->Unit(benchmark::kMillisecond);

// ---- Counts of every filter code ---------------------------------------------------------------------

std::vector<int> ContactCodes() {
    std::vector<int> codes;
    for (int code = 0; code <= 48; ++code)
        codes.push_back(code);
    codes.push_back(999);
    return codes;
}

void BM_GetTotal_AllContactFilters(benchmark::State& state) {
    for (auto _ : state) {
        long sum = 0;
        for (int code : ContactCodes())
            sum += clsCONTACT::GetTotal(code);
        benchmark::DoNotOptimize(sum);
    }
    state.counters["codes"] = static_cast<double>(ContactCodes().size());
}
BENCHMARK(BM_GetTotal_AllContactFilters)->Unit(benchmark::kMillisecond);

void BM_GetTotal_AllInviteFilters(benchmark::State& state) {
    for (auto _ : state) {
        long sum = 0;
        for (int code = 0; code <= 19; ++code)
            sum += clsINVITE::GetTotal(code);
        benchmark::DoNotOptimize(sum);
    }
    state.counters["codes"] = 20;
}
BENCHMARK(BM_GetTotal_AllInviteFilters)->Unit(benchmark::kMillisecond);

// The same conditions counted with bare calls (the plain joins only).
void BM_GetTotal_AllContactFilters_BareSqlite(benchmark::State& state) {
    sqlite3* db = OpenBare();
    std::vector<std::string> sql;
    for (int code : ContactCodes())
        sql.push_back(QString(QStringLiteral("SELECT COUNT(*) FROM CONTACT ") +
                              clsCONTACT::ContactJoinType(code) +
                              QStringLiteral(" INVITE ON CONTACT.INVITE_ID = INVITE.INVITE_ID ") +
                              clsCONTACT::BuildContactWhere(code, QString(), false))
                          .toStdString());
    for (int code = 0; code <= 19; ++code)
        sql.push_back(
            QString(QStringLiteral("SELECT COUNT(INVITE.INVITE_ID) FROM INVITE INNER JOIN CONTACT ON "
                                   "INVITE.INVITE_ID = CONTACT.INVITE_ID ") +
                    clsINVITE::BuildInviteWhere(code, QString()))
                .toStdString());
    for (auto _ : state) {
        size_t sum = 0;
        for (const std::string& s : sql)
            sum += ReadAll(db, s.c_str()).size();
        benchmark::DoNotOptimize(sum);
    }
    state.counters["codes"] = static_cast<double>(sql.size());
    sqlite3_close(db);
}
BENCHMARK(BM_GetTotal_AllContactFilters_BareSqlite)->Unit(benchmark::kMillisecond);

// ---- Deleting a selection --------------------------------------------------------------------------

// Every second guest of the list who has no gift (a gift keeps its giver), 5 000 in all, deleted with
// the guests they bring in one run, the way the Contacts page deletes a selection; the outer
// transaction is rolled back, so every round starts from the same file.
void BM_DeleteContacts(benchmark::State& state) {
    const clsRecordset free = gDB().Execute(QStringLiteral(
        "SELECT CONTACT_ID FROM CONTACT AS C WHERE CONTACT_ID > 2 AND NOT EXISTS (SELECT 1 FROM CONTACT AS G "
        "JOIN GIFT ON GIFT.CONTACT_ID = G.CONTACT_ID WHERE G.CONTACT_ID = C.CONTACT_ID OR G.GUEST_OF_ID = "
        "C.CONTACT_ID) ORDER BY CONTACT_ID"));
    QStringList keys;
    for (int row = 0; row < free.RowCount() && keys.size() < state.range(0); row += 2)
        keys.append(free.Row(row).at(0));
    for (auto _ : state) {
        try {
            clsTransaction tx(gDB());
            const clsDeleteResult result = clsCONTACT::DeleteMany(keys);
            state.counters["deleted"] = static_cast<double>(result.Deleted.size());
        } catch (const clsDbError& e) {
            state.SkipWithError(qPrintable(e.Message()));
            break;
        }
    }
}
BENCHMARK(BM_DeleteContacts)->Arg(5000)->Unit(benchmark::kMillisecond);

// ---- The contacts report -----------------------------------------------------------------------------

// The whole guest list written as a document, landscape, into the report folder; the file of each round
// replaces the last one. Compare with BM_ContactOpenRecords_BareSqlite, which reads the same rows.
void BM_ContactsReport(benchmark::State& state) {
    const QList<clsReportCatalogue::FilterRow> rows = clsReportCatalogue::FilterRows(clsReportCatalogue::Contacts);
    const clsReportRoute route = clsReportCatalogue::Route(clsReportCatalogue::Contacts, rows, 0);
    modReportRunner::Output output;
    output.UseRtf = state.range(0) == 1;
    for (auto _ : state) {
        if (modReportRunner::Write(route, output).isEmpty())
            state.SkipWithError("the contacts report was not written");
    }
    state.SetLabel(output.UseRtf ? "RTF" : "CSV");
}
BENCHMARK(BM_ContactsReport)->Arg(1)->Arg(0)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    BenchHome home;
    QString message;
    if (!modSubMain::Start(&message)) {
        std::fprintf(stderr, "vowren-bench: %s\n", qPrintable(message));
        return 1;
    }
    QElapsedTimer fill;
    fill.start();
    if (!FillDemoWedding(10000, 1, &message)) {
        std::fprintf(stderr, "vowren-bench: %s\n", qPrintable(message));
        return 1;
    }
    std::printf("%s (made in %lld ms)\n", qPrintable(message), static_cast<long long>(fill.elapsed()));
    gPath = gDB().DatabasePath;
    RegisterReportClasses();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    gDB().CloseConnection();
    return 0;
}
