// Sync DAT files of a million points: the plain bytes, the load, the matching of sync records, the
// passes over the file and the three forms of writing.
#include "document/number_text.h"
#include "document/session.h"
#include "fakes/put_in_place.h"
#include "fakes/recording_platform.h"
#include "formats/file_passes.h"
#include "formats/fixed_record.h"
#include "formats/fixed_record_readers.h"
#include "formats/outline_writer.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <fstream>
#include <random>
#include <string>

namespace velmora {
namespace {

constexpr std::int64_t kPoints = 1'000'000;

/// Paints nothing: the repaint behind a save is the canvas's own affair.
class BlankSurface : public Surface {
  public:
    double Width() const override { return 30000; }
    double Height() const override { return 30000; }
    void Cls() override {}
    void set_back_color(std::uint32_t) override {}
    void set_pen(std::uint32_t) override {}
    void set_draw_mode(DrawMode) override {}
    void MoveToEx(std::int32_t, std::int32_t) override {}
    void LineTo(std::int32_t, std::int32_t) override {}
    void Polyline(std::span<const PixelPoint>) override {}
    void Arc(std::int32_t, std::int32_t, std::int32_t, std::int32_t) override {}
    void Line(float, float, float, float) override {}
    void FillBox(float, float, float, float, std::uint32_t) override {}
    void set_picture(std::string_view) override {}
    void save_part(std::string_view, PixelPoint, PixelPoint) override {}
    void present() override {}
};

/// The services of a run, with windows that look at the clock when they get their turn, as the
/// program's own do.
class Bench : public test::RecordingWindows {
  public:
    Bench() {
        test::put_in_place(*this);
        test::put_in_place(pic_);
        session.ShowPtos = session.ShowPtosCtrl = False;
    }
    void yield() override { benchmark::DoNotOptimize(std::chrono::steady_clock::now()); }

    [[nodiscard]] std::string path(const std::string& name) const { return platform_.path(name); }
    [[nodiscard]] std::string write(const std::string& name, std::string_view bytes) const {
        return platform_.write(name, bytes);
    }

  private:
    test::RecordingPlatform platform_;
    BlankSurface pic_;
};

/// A spiral with all 15 digits in use, or with six decimals.
void make_shape(std::int64_t sync_points, bool all_digits) {
    Forma.Pto.redim(static_cast<std::int32_t>(kPoints) - 1);
    std::int32_t i = 0;
    for (Pto& point : Forma.Pto.all()) {
        const double turn = 0.001 * i;
        point.X = turn * std::cos(turn);
        point.Y = turn * std::sin(turn);
        if (!all_digits) {
            point.X = std::round(point.X * 1e6) / 1e6;
            point.Y = std::round(point.Y * 1e6) / 1e6;
        }
        ++i;
    }
    std::mt19937 random(7);
    for (std::int64_t n = 0; n < sync_points;) {
        Pto& point = Forma.Pto[static_cast<std::int32_t>(random() % kPoints)];
        n += point.Sinc == 0 ? 1 : 0;
        point.Sinc = 1;
    }
}

/// Writes the shape under a name of its own and gives the path.
std::string written(const Bench& bench) {
    session.Velmora.TxtDat_File = bench.path("wing.dat");
    EscribeFichero();
    return session.FileName;
}

void count_bytes(benchmark::State& state, const std::string& path) {
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(path));
    state.SetBytesProcessed(state.iterations() * size);
}

void plain_read(benchmark::State& state) {
    const Bench bench;
    make_shape(1, false);
    const std::string path = written(bench);
    std::string block(1 << 16, ' ');
    for (auto _ : state) {
        std::ifstream file(path, std::ios::binary);
        while (file.read(block.data(), static_cast<std::streamsize>(block.size())))
            benchmark::DoNotOptimize(block.data());
    }
    count_bytes(state, path);
}

void load(benchmark::State& state) {
    const Bench bench;
    make_shape(state.range(0), state.range(1) != 0);
    const std::string path = written(bench);
    for (auto _ : state)
        if (CargaSLWSINC(path) != True)
            state.SkipWithError("not loaded");
    state.counters["points"] = static_cast<double>(Forma.Pto.size());
    state.counters["sync"] = session.TotalSinc;
    count_bytes(state, path);
}

/// What CargaSLWSINC could do at best: the records, cut and turned into numbers.
void records_alone(benchmark::State& state) {
    const Bench bench;
    make_shape(1, state.range(0) != 0);
    const std::string path = written(bench);
    for (auto _ : state) {
        session.files.open_random(1, path, FixedRecord::length);
        for (int i = 0; i < 2; ++i)
            (void)session.files.read_record(1);
        for (std::int64_t i = 0; i < kPoints; ++i) {
            const FixedRecord record(session.files.read_record(1));
            benchmark::DoNotOptimize(CDbl(record.field1()) + CDbl(record.field2()));
        }
        session.files.close(1);
    }
    count_bytes(state, path);
}

void write(benchmark::State& state) {
    const Bench bench;
    make_shape(state.range(0), state.range(1) != 0);
    for (auto _ : state)
        written(bench);
    count_bytes(state, session.FileName);
}

void write_text(benchmark::State& state) {
    const Bench bench;
    make_shape(0, false);
    session.GenDATSinc = False;
    session.GenSCR = flag(state.range(0) == 0);
    session.GenDATPerfil = flag(state.range(0) != 0);
    for (auto _ : state)
        written(bench);
    count_bytes(state, session.FileName);
}

void separator_pass(benchmark::State& state) {
    const Bench bench;
    const std::string commas = "12,5                 -3,25                \r\n";
    std::string text;
    for (std::int64_t i = 0; i < kPoints; ++i)
        text += commas;
    for (auto _ : state) {
        state.PauseTiming();
        const std::string path = bench.write("commas.dat", text);
        state.ResumeTiming();
        SetDecimalSep(path);
    }
    count_bytes(state, bench.path("commas.dat"));
}

BENCHMARK(plain_read)->Unit(benchmark::kMillisecond);
BENCHMARK(records_alone)->ArgName("digits")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(load)
    ->ArgNames({"sync", "digits"})
    ->ArgsProduct({{1, 100'000, kPoints}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(write)
    ->ArgNames({"sync", "digits"})
    ->ArgsProduct({{1, 100'000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(write_text)->ArgName("profile")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(separator_pass)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora
