// The language database: rows of a merged list in and out, beside SQLite's interface by itself, and
// the look-up of a message.
#include "fakes/recording_platform.h"
#include "platform/database.h"
#include "platform/platform.h"
#include "services/messages.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <string>

namespace velmora {
namespace {

constexpr std::int64_t kRows = 100000;
constexpr const char* kSorted = "SELECT * FROM TEMP_AJUSTE ORDER BY POS_PERCENT ASC";

// Positions that come out of order, some of them twice.
double position_of(std::int64_t row) {
    return static_cast<double>(row * 7919 % 50021);
}

void add_rows(Database& database) {
    database.execute("DELETE FROM TEMP_AJUSTE");
    database.begin();
    const auto rows = database.open_recordset("TEMP_AJUSTE", Access::read_write);
    for (std::int64_t row = 0; row < kRows; ++row) {
        rows->add_new();
        rows->set_field("ORDEN", row);
        rows->set_field("POS_PERCENT", position_of(row));
        rows->set_field("LADO", std::string("A"));
        rows->update();
    }
    database.commit();
}

void add_merged_rows(benchmark::State& state) {
    const test::RecordingPlatform machine;
    for (auto _ : state)
        add_rows(*machine.database);
    state.SetItemsProcessed(state.iterations() * kRows);
}
BENCHMARK(add_merged_rows)->Unit(benchmark::kMillisecond);

void add_merged_rows_peer(benchmark::State& state) {
    const test::RecordingPlatform machine;
    sqlite3* peer = nullptr;
    sqlite3_open(machine.path("VELMORA.MDB").c_str(), &peer);
    for (auto _ : state) {
        sqlite3_exec(peer, "DELETE FROM TEMP_AJUSTE; BEGIN", nullptr, nullptr, nullptr);
        sqlite3_stmt* insert = nullptr;
        sqlite3_prepare_v2(peer, "INSERT INTO TEMP_AJUSTE VALUES (NULL,NULL,?,?,?)", -1, &insert,
                           nullptr);
        for (std::int64_t row = 0; row < kRows; ++row) {
            sqlite3_bind_int64(insert, 1, row);
            sqlite3_bind_double(insert, 2, position_of(row));
            sqlite3_bind_text(insert, 3, "A", 1, SQLITE_STATIC);
            sqlite3_step(insert);
            sqlite3_reset(insert);
        }
        sqlite3_finalize(insert);
        sqlite3_exec(peer, "COMMIT", nullptr, nullptr, nullptr);
    }
    sqlite3_close(peer);
    state.SetItemsProcessed(state.iterations() * kRows);
}
BENCHMARK(add_merged_rows_peer)->Unit(benchmark::kMillisecond);

void read_sorted_rows(benchmark::State& state) {
    const test::RecordingPlatform machine;
    add_rows(*machine.database);
    for (auto _ : state) {
        const auto rows = machine.database->open_recordset(kSorted, Access::read_only);
        double sum = 0;
        for (rows->move_first(); !rows->eof(); rows->move_next())
            if (text_of(rows->field("LADO")) == "A")
                sum += std::get<double>(rows->field("POS_PERCENT"));
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * kRows);
}
BENCHMARK(read_sorted_rows)->Unit(benchmark::kMillisecond);

void read_sorted_rows_peer(benchmark::State& state) {
    const test::RecordingPlatform machine;
    add_rows(*machine.database);
    sqlite3* peer = nullptr;
    sqlite3_open(machine.path("VELMORA.MDB").c_str(), &peer);
    for (auto _ : state) {
        sqlite3_stmt* rows = nullptr;
        sqlite3_prepare_v2(peer, kSorted, -1, &rows, nullptr);
        double sum = 0;
        while (sqlite3_step(rows) == SQLITE_ROW)
            if (*sqlite3_column_text(rows, 4) == 'A')
                sum += sqlite3_column_double(rows, 3);
        benchmark::DoNotOptimize(sum);
        sqlite3_finalize(rows);
    }
    sqlite3_close(peer);
    state.SetItemsProcessed(state.iterations() * kRows);
}
BENCHMARK(read_sorted_rows_peer)->Unit(benchmark::kMillisecond);

void look_up_a_message(benchmark::State& state) {
    const test::RecordingPlatform machine;
    for (auto _ : state)
        benchmark::DoNotOptimize(GetMensaje(57));
}
BENCHMARK(look_up_a_message)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace velmora
