// The adjustment of two sides that differ in every run, from the press of the button to the last
// preview, with the real table behind it.
#include "cutprep/preview_surface.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "forms/ajuste.h"
#include "platform/platform.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <string>

namespace {

using namespace velmora;

/// Takes what is drawn and keeps nothing.
class BlindPreviews : public Previews, private PreviewSurface {
  public:
    PreviewSurface& picture(PreviewPicture) override { return *this; }

  private:
    double ScaleWidth() const override { return 3000; }
    double ScaleHeight() const override { return 2000; }
    void Cls() override {}
    void Line(double x1, double y1, double x2, double y2, std::uint32_t) override {
        benchmark::DoNotOptimize(x1 + y1 + x2 + y2);
    }
    void Circle(double x, double y, double radius, std::uint32_t) override {
        benchmark::DoNotOptimize(x + y + radius);
    }
};

/// A closed curve; `turn` moves the sync points by that share of a run.
void fill(Array<Pto>& points, std::int32_t count, std::int32_t syncs, double turn) {
    points.redim(count - 1);
    for (std::int32_t i = 0; i < count; ++i) {
        const double angle = 2 * session.PI * i / count;
        points[i] = {.X = 200 + 100 * std::cos(angle), .Y = 60 + 30 * std::sin(3 * angle)};
    }
    // Every second run is longer on one side, the others on the other.
    const std::int32_t run = count / syncs;
    for (std::int32_t k = 0; k < syncs; ++k)
        points[k * run + (k % 2 == 0 ? 0 : static_cast<std::int32_t>(turn * run))].Sinc = 1;
}

void adjust(benchmark::State& state) {
    test::RecordingPlatform machine;
    BlindPreviews previews;
    Platform services = platform();
    services.previews = &previews;
    set_platform(services);
    const auto points = static_cast<std::int32_t>(state.range(0));
    const auto syncs = static_cast<std::int32_t>(state.range(1));
    fill(session.PtosA, points, syncs, 0);
    fill(session.PtosB, points, syncs, 0.3);
    session.ajuste.TxtTotalCtrlPtos_A = std::to_string(syncs);
    session.ajuste.txt_fileA = session.ajuste.Txt_FileB = "lado.dat";
    session.OptX = session.OptY = session.OptZ = 100;
    for (auto unused : state)
        Cmd_Ajuste_Click();
    state.SetComplexityN(points);
}

BENCHMARK(adjust)
    ->Name("adjust two sides")
    ->Args({2'000, 20})
    ->Args({20'000, 200})
    ->Args({200'000, 2'000})
    ->Args({200'000, 200})
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->Complexity(benchmark::oNLogN);

} // namespace
