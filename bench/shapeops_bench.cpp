// Whole-shape operations on a million points.
#include "document/refresh.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "shapeops/scaling.h"
#include "shapeops/transforms.h"

#include <benchmark/benchmark.h>

#include <random>

namespace velmora {
namespace {

constexpr std::int32_t kPoints = 1'000'000;

/// Coordinates with all 17 digits in use.
Array<Pto> raw_outline() {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> spread(-1000, 1000);
    Array<Pto> points;
    points.redim(kPoints - 1);
    for (Pto& point : points.all())
        point = {spread(random), spread(random)};
    return points;
}

void on_a_million_points(benchmark::State& state, void (*operation)()) {
    const test::RecordingPlatform platform;
    const Array<Pto> raw = raw_outline();
    session.Precision = 6;
    for (auto _ : state) {
        state.PauseTiming();
        Forma.Pto = raw;
        state.ResumeTiming();
        operation();
    }
    state.SetItemsProcessed(state.iterations() * kPoints);
}

BENCHMARK_CAPTURE(on_a_million_points, Apply_Precision, Apply_Precision)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(on_a_million_points, ScaleToUnit, ScaleToUnit)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(on_a_million_points, InvertDat, InvertDat)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(
    on_a_million_points, Carga_List_Coords, +[] { Carga_List_Coords("UPDATE"); })
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora
