#include "dxf_drawings.h"

#include "document/forma.h"
#include "fakes/recording_platform.h"
#include "formats/dxf.h"

#include <benchmark/benchmark.h>

#include <string>

namespace velmora {
namespace {

void dxf_lines(benchmark::State& state) {
    const test::RecordingPlatform platform;
    const std::string text = bench::shuffled_lines(state.range(0));
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
