#include "document/forma.h"
#include "fakes/recording_platform.h"
#include "formats/free_text_readers.h"
#include "formats/scr_cut_readers.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <cmath>
#include <string>

namespace velmora {
namespace {

void put(std::string& text, double value) {
    char digits[32];
    text.append(
        digits,
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 6).ptr);
}

/// A closed outline of `count` points, coordinates with six decimals.
template <class Line>
std::string outline_text(std::int64_t count, Line line) {
    std::string text;
    for (std::int64_t i = 0; i < count; ++i) {
        const double angle =
            6.283185307179586 * static_cast<double>(i) / static_cast<double>(count);
        line(text, 500 + 500 * std::cos(angle), 100 + 100 * std::sin(angle));
    }
    return text;
}

void measure(benchmark::State& state, std::int16_t (*reader)(std::string_view),
             const std::string& text) {
    const test::RecordingPlatform platform;
    const std::string path = platform.write("bench.dat", text);
    for (auto _ : state) {
        if (reader(path) != -1)
            state.SkipWithError("not loaded");
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
    state.counters["points"] = static_cast<double>(Forma.Pto.size());
}

void free_text_line(std::string& text, double X, double Y) {
    put(text, X);
    text += ' ';
    put(text, Y);
    text += "\r\n";
}

void noslw(benchmark::State& state) {
    measure(state, CargaNOSLW, outline_text(state.range(0), free_text_line));
}

/// Every point is a sync point as well.
void slwmd(benchmark::State& state) {
    const std::string points = outline_text(state.range(0), free_text_line);
    std::string text = "KORDLINE\r\n\r\n\r\n";
    text.append(points).append("Puntos Sincronismo\r\n\r\n").append(points);
    measure(state, CargaSLWMD, text);
}

void script(benchmark::State& state) {
    const auto line = [](std::string& text, double X, double Y) {
        put(text, X);
        text += ',';
        put(text, Y);
        text += "\r\n";
    };
    measure(state, CargaSCR, "pline\r\n" + outline_text(state.range(0), line));
}

void cut(benchmark::State& state) {
    const auto line = [](std::string& text, double X, double Y) {
        put(text.append("XG: "), X);
        put(text.append(" YG: "), Y);
        put(text.append(" XD: "), X);
        put(text.append(" YD: "), Y);
        text += "\r\n";
    };
    measure(state, CargaCUT, outline_text(state.range(0), line));
}

BENCHMARK(noslw)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(slwmd)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(script)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(cut)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora
