#include "import/import_bytes.h"

#include "dxf_drawings.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <string>

namespace velmora {
namespace {

/// Cubic splines of 20 control points each.
std::string splines(std::int64_t count) {
    constexpr int controls = 20;
    std::string text;
    for (std::int64_t i = 0; i < count; ++i) {
        text += "  0\r\nSPLINE\r\n  8\r\n0\r\n 70\r\n8\r\n 71\r\n3\r\n";
        for (int k = 0; k < controls + 4; ++k)
            bench::put_pair(text, " 40", std::clamp(k - 3, 0, controls - 3));
        for (int k = 0; k < controls; ++k) {
            bench::put_pair(text, " 10", static_cast<double>(i % 40) * 30 + k);
            bench::put_pair(text, " 20",
                            static_cast<double>(i / 40) * 30 +
                                10 * std::sin(k + 0.1 * static_cast<double>(i)));
        }
    }
    return bench::sheet(text);
}

void run(benchmark::State& state, const std::string& bytes) {
    std::size_t points = 0;
    for (auto _ : state) {
        const imports::Imported imported = imports::import_bytes(bytes, "bench.dxf");
        points = 0;
        for (const imports::Chain& chain : imported.chains)
            points += chain.points.size();
        if (points == 0)
            state.SkipWithError("not read");
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
    state.counters["points"] = static_cast<double>(points);
}

void import_dxf_lines(benchmark::State& state) {
    run(state, bench::shuffled_lines(state.range(0)));
}

void import_dxf_splines(benchmark::State& state) {
    run(state, splines(state.range(0)));
}

BENCHMARK(import_dxf_lines)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(import_dxf_splines)->Arg(1'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora
