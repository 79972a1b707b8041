#include "import/import_bytes.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {
namespace {

void put(std::string& text, std::string_view code, double value) {
    char digits[32];
    text.append(code).append("\r\n");
    text.append(
        digits,
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 6).ptr);
    text += "\r\n";
}

std::string whole(const std::string& entities) {
    return "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n" + entities + "  0\r\nENDSEC\r\n  0\r\nEOF\r\n";
}

/// The same lines as the other reader's bench: a closed run, shuffled, half of them backwards.
std::string shuffled_lines(std::int64_t count) {
    std::mt19937 random(7);
    std::vector<std::int64_t> order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), std::int64_t{0});
    std::shuffle(order.begin(), order.end(), random);
    std::string text;
    const auto put_corner = [&](std::int64_t i, bool last) {
        put(text, last ? " 11" : " 10", 2.5 * static_cast<double>(i % 1000) + 0.25);
        put(text, last ? " 21" : " 20", 2.5 * static_cast<double>(i / 1000) + 0.25);
        put(text, last ? " 31" : " 30", 0);
    };
    for (const std::int64_t i : order) {
        const bool backwards = random() % 2 == 0;
        text += "  0\r\nLINE\r\n  5\r\n2F\r\n100\r\nAcDbEntity\r\n  8\r\n0\r\n100\r\nAcDbLine\r\n";
        put_corner(backwards ? (i + 1) % count : i, false);
        put_corner(backwards ? i : (i + 1) % count, true);
    }
    return whole(text);
}

/// Cubic splines of 20 control points each.
std::string splines(std::int64_t count) {
    constexpr int controls = 20;
    std::string text;
    for (std::int64_t i = 0; i < count; ++i) {
        text += "  0\r\nSPLINE\r\n  8\r\n0\r\n 70\r\n8\r\n 71\r\n3\r\n";
        for (int k = 0; k < controls + 4; ++k)
            put(text, " 40", std::clamp(k - 3, 0, controls - 3));
        for (int k = 0; k < controls; ++k) {
            put(text, " 10", static_cast<double>(i % 40) * 30 + k);
            put(text, " 20",
                static_cast<double>(i / 40) * 30 + 10 * std::sin(k + 0.1 * static_cast<double>(i)));
        }
    }
    return whole(text);
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
    run(state, shuffled_lines(state.range(0)));
}

void import_dxf_splines(benchmark::State& state) {
    run(state, splines(state.range(0)));
}

BENCHMARK(import_dxf_lines)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(import_dxf_splines)->Arg(1'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora
