#include "document/forma.h"
#include "fakes/recording_platform.h"
#include "formats/dxf.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numeric>
#include <random>
#include <string>
#include <vector>

namespace velmora {
namespace {

void put_pair(std::string& text, std::string_view code, double value) {
    char digits[32];
    text.append(code).append("\r\n");
    text.append(
        digits,
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 6).ptr);
    text += "\r\n";
}

struct Corner {
    double X;
    double Y;
};

/// Corner i of a saw-toothed spiral: every corner in a cell of its own.
Corner corner(std::int64_t i) {
    return {2.5 * static_cast<double>(i % 1000) + 0.25, 2.5 * static_cast<double>(i / 1000) + 0.25};
}

void put_line(std::string& text, const Corner& from, const Corner& to) {
    text += "  0\r\nLINE\r\n  5\r\n2F\r\n100\r\nAcDbEntity\r\n  8\r\n0\r\n100\r\nAcDbLine\r\n";
    put_pair(text, " 10", from.X);
    put_pair(text, " 20", from.Y);
    put_pair(text, " 30", 0);
    put_pair(text, " 11", to.X);
    put_pair(text, " 21", to.Y);
    put_pair(text, " 31", 0);
}

/// A closed run of `count` LINE entities, shuffled, half of them drawn backwards.
std::string drawing(std::int64_t count) {
    std::mt19937 random(7);
    std::vector<std::int64_t> order(static_cast<std::size_t>(count));
    std::iota(order.begin(), order.end(), std::int64_t{0});
    std::shuffle(order.begin(), order.end(), random);
    std::string text = "  0\r\nSECTION\r\n  2\r\nHEADER\r\n  9\r\n$ACADVER\r\n  1\r\nAC1015\r\n"
                       "  0\r\nENDSEC\r\n  0\r\nSECTION\r\n  2\r\nENTITIES\r\n";
    for (const std::int64_t i : order) {
        const Corner from = corner(i);
        const Corner to = corner((i + 1) % count);
        if (random() % 2 == 0)
            put_line(text, from, to);
        else
            put_line(text, to, from);
    }
    return text + "  0\r\nENDSEC\r\n  0\r\nEOF\r\n";
}

void dxf_lines(benchmark::State& state) {
    const test::RecordingPlatform platform;
    const std::string text = drawing(state.range(0));
    const std::string path = platform.write("bench.dxf", text);
    for (auto _ : state) {
        if (CargaDXF(path) != -1 || !platform.dialogs.boxes.empty())
            state.SkipWithError("not loaded");
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
    state.counters["points"] = static_cast<double>(Forma.Pto.size());
}

BENCHMARK(dxf_lines)->Arg(1'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora
