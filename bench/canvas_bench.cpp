// The canvas: repaints of a large shape beside the desktop's own painter, hit test, drag.
#include "adapters/qt/image_surface.h"
#include "canvas/fit.h"
#include "canvas/pointer.h"
#include "canvas/rubber_band.h"
#include "canvas/view.h"
#include "canvas/wheel_zoom.h"
#include "document/refresh.h"
#include "document/session.h"
#include "fakes/put_in_place.h"
#include "fakes/recording_platform.h"

#include <QImage>
#include <QPainter>
#include <QPolygon>
#include <benchmark/benchmark.h>
#include <cmath>

namespace velmora {
namespace {

constexpr std::int32_t kPoints = 32000;

/// A wavy ring round the middle of the canvas, a zoom of 1, every eighth point a sync point.
class RingOnCanvas {
  public:
    explicit RingOnCanvas(double waves) {
        test::put_in_place(pic_);
        session.ZoomFactor = 1;
        session.PtoSel = -1;
        session.MinXForma = session.MinYForma = -1000;
        Forma.Pto.redim(kPoints - 1);
        for (std::int32_t i = 0; i < kPoints; ++i) {
            const double turn = 2 * session.PI * i / kPoints;
            const double radius = 700 + 250 * std::sin(waves * turn);
            Forma.Pto[i] = {radius * std::cos(turn), radius * std::sin(turn),
                            static_cast<std::int16_t>(i % 8 == 0 ? 1 : 0), 0};
        }
        Dibuja();
    }

    [[nodiscard]] const ImageSurface& pic() const { return pic_; }

  private:
    test::RecordingPlatform platform_;
    ImageSurface pic_;
};

void repaint(benchmark::State& state) {
    const RingOnCanvas ring(static_cast<double>(state.range(0)));
    session.ShowPtos = session.ShowPtosCtrl = flag(state.range(1) != 0);
    for ([[maybe_unused]] auto _ : state)
        Dibuja();
}
BENCHMARK(repaint)
    ->Name("Dibuja of 32000 points")
    ->ArgsProduct({{0, 40, 400}, {0, 1}})
    ->ArgNames({"waves", "glyphs"})
    ->Unit(benchmark::kMillisecond);

/// Most of the shape lies outside the canvas, and many segments cross its edge.
void zoomed_repaint(benchmark::State& state) {
    const RingOnCanvas ring(static_cast<double>(state.range(0)));
    session.ZoomFactor = 50;
    for ([[maybe_unused]] auto _ : state)
        Dibuja();
}
BENCHMARK(zoomed_repaint)
    ->Name("Dibuja of 32000 points, zoomed in")
    ->Arg(40)
    ->Arg(4000)
    ->ArgName("waves")
    ->Unit(benchmark::kMillisecond);

void wheel(benchmark::State& state) {
    const RingOnCanvas ring(static_cast<double>(state.range(0)));
    int step = 1;
    for ([[maybe_unused]] auto _ : state)
        zoom_around({1100, 1100}, step = -step);
}
BENCHMARK(wheel)
    ->Name("a step of the wheel's zoom, 32000 points")
    ->Arg(0)
    ->Arg(40)
    ->Arg(400)
    ->ArgName("waves")
    ->Unit(benchmark::kMillisecond);

void fit(benchmark::State& state) {
    const RingOnCanvas ring(40);
    for ([[maybe_unused]] auto _ : state)
        fit_shape();
}
BENCHMARK(fit)->Name("fit_shape of 32000 points")->Unit(benchmark::kMillisecond);

void bare_polyline(benchmark::State& state) {
    const RingOnCanvas ring(static_cast<double>(state.range(0)));
    QImage image(ring.pic().image().size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPolygon polygon;
    for (const Pto& point : Forma.Pto.all()) {
        const PixelPoint pixel = pixel_of(point);
        polygon << QPoint(pixel.x, pixel.y);
    }
    for ([[maybe_unused]] auto _ : state) {
        QPainter painter(&image);
        painter.setPen(Qt::black);
        painter.drawPolyline(polygon);
    }
}
BENCHMARK(bare_polyline)
    ->Name("QPainter::drawPolyline of 32000 points")
    ->Arg(0)
    ->Arg(40)
    ->Arg(400)
    ->ArgName("waves")
    ->Unit(benchmark::kMillisecond);

void clear(benchmark::State& state) {
    ImageSurface pic;
    for ([[maybe_unused]] auto _ : state)
        pic.Cls();
}
BENCHMARK(clear)->Name("Cls")->Unit(benchmark::kMillisecond);

void hit_test(benchmark::State& state) {
    const RingOnCanvas ring(40);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(HitPto(1000, 1000));
}
BENCHMARK(hit_test)->Name("HitPto off 32000 points")->Unit(benchmark::kMicrosecond);

void drag(benchmark::State& state) {
    const RingOnCanvas ring(40);
    session.PtoSel = 100;
    double x = 0;
    for ([[maybe_unused]] auto _ : state)
        DibujaDrag(x = 100 - x, 50);
}
BENCHMARK(drag)->Name("DibujaDrag")->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace velmora
