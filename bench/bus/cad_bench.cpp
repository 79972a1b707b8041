// Reading a drawing out of a CAD in another process. Needs a session bus to itself:
//     dbus-run-session -- build/release/bin/velmora-bus-bench
#include "adapters/dbus/dbus_cad.h"
#include "cad/autocad.h"
#include "remote_cad.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

namespace velmora {
namespace {

/// Every entity's class and all its coordinates; the number of them.
std::size_t read_through(AcadDocument& drawing) {
    std::size_t numbers = 0;
    const std::int32_t count = drawing.Count();
    for (std::int32_t i = 0; i < count; ++i) {
        const auto entity = drawing.Item(i);
        if (entity->ObjectName() == "AcDbLine")
            numbers += entity->StartPoint().size() + entity->EndPoint().size();
        else
            numbers += entity->Coordinates().size();
    }
    return numbers;
}

void read_drawing(benchmark::State& state, const char* entities) {
    test::RemoteCad remote;
    remote.say("running AutoCAD 15.0");
    remote.say("document Ala.dwg");
    remote.say(entities);
    const auto drawing = make_dbus_cad()->GetObject()->ActiveDocument();
    std::size_t numbers = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(numbers = read_through(*drawing));
    state.counters["numbers"] = static_cast<double>(numbers);
}

BENCHMARK_CAPTURE(read_drawing, lines_10000, "run-of-lines 10000")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(read_drawing, polylines_10000_of_20_points, "run-of-polylines 10000 20")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
