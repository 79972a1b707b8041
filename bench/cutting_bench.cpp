// What is cut, looked at: the report, the wire and the program of an outline of many points.
#include "cutting/cut_report.h"
#include "cutting/gcode_writer.h"
#include "cutting/self_crossing.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>

namespace {

using namespace velmora::cutting;

/// A drop with a fine wave on it, as a digitised outline has; it does not cross itself.
SidePath drop(std::size_t count, double chord) {
    SidePath path;
    for (std::size_t i = 0; i < count; ++i) {
        const double t = 2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count);
        const double x = (1 + std::cos(t)) / 2;
        const double wave = 1 + 0.001 * std::sin(200 * t);
        path.points.push_back({chord * x, chord * 0.3 * wave * std::sin(t) * (1 - x)});
    }
    path.sync = {0, count / 2};
    return path;
}

/// Steps that all lie beside one another over the whole shape, aslant: what a search by boxes or
/// cells takes for crossings.
SidePath zigzag(std::size_t count) {
    SidePath path;
    for (std::size_t i = 0; i < count; ++i) {
        const double along = static_cast<double>(i) / static_cast<double>(count);
        const double across = i % 2 == 0 ? 0 : 300;
        path.points.push_back({100 * along + across, -100 * along + 0.7 * across});
    }
    path.sync = {0};
    return path;
}

Sides wing(std::size_t count) {
    return {.A = drop(count, 300), .B = drop(count, 180)};
}

void report(benchmark::State& state) {
    const Sides sides = wing(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(report_of(sides));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(report)->Arg(1'000)->Arg(20'000)->Arg(100'000)->Complexity()->Unit(
    benchmark::kMillisecond);

void report_of_a_zigzag(benchmark::State& state) {
    const SidePath path = zigzag(static_cast<std::size_t>(state.range(0)));
    const Sides sides = {.A = path, .B = path, .closed = false};
    for (auto _ : state)
        benchmark::DoNotOptimize(report_of(sides));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(report_of_a_zigzag)
    ->Arg(1'000)
    ->Arg(20'000)
    ->Arg(100'000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);

/// A side turned against the other, and steps that cross nearly all others.
void report_of_a_tangle(benchmark::State& state) {
    Sides sides = wing(static_cast<std::size_t>(state.range(0)));
    for (std::size_t i = 0; i < sides.B.points.size(); i += 2)
        sides.B.points[i].Y = -sides.B.points[i].Y;
    for (auto _ : state)
        benchmark::DoNotOptimize(report_of(sides));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(report_of_a_tangle)
    ->Arg(1'000)
    ->Arg(20'000)
    ->Arg(100'000)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);

void wire_and_program(benchmark::State& state) {
    const Sides sides = wing(static_cast<std::size_t>(state.range(0)));
    const Machine machine;
    for (auto _ : state) {
        const Wire wire = wire_of_faces(sides, {.X = 50, .Y = 80, .Z = 600});
        benchmark::DoNotOptimize(gcode_of(wire, machine, 300));
    }
}
BENCHMARK(wire_and_program)->Arg(20'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void place_of_the_wire(benchmark::State& state) {
    const Wire wire = wire_of_faces(wing(100'000), {.X = 50, .Y = 80, .Z = 600});
    double along = 0;
    for (auto _ : state) {
        along = std::fmod(along + 0.37 * wire.length(), wire.length());
        benchmark::DoNotOptimize(place_at(wire, along));
    }
}
BENCHMARK(place_of_the_wire);

} // namespace
