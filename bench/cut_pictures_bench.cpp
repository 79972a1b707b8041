// The pictures of a cut with 20,000 joined pairs: turned by the hand, with all of it cut, and both
// outlines in one plane with every joined line. A frame in less than 33 ms is 30 a second.
#include "ui/sides_drawing.h"
#include "ui/space_drawing.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <benchmark/benchmark.h>
#include <cmath>
#include <numbers>

namespace velmora {
namespace {

constexpr std::size_t kPairs = 20'000;
constexpr QSize kSize(1200, 700);

/// Texts need one; it stays to the end.
void have_application() {
    static int count = 1;
    static char name[] = "bench";
    static char* words[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const auto* const application = new QApplication(count, words);
    benchmark::DoNotOptimize(application);
}

/// A thick wing section of so many points and waves of a tenth of a millimetre, each hundredth
/// point a sync point.
cutting::SidePath section(double chord, double back) {
    cutting::SidePath side;
    for (std::size_t i = 0; i < kPairs; ++i) {
        const double turn = 2 * std::numbers::pi * static_cast<double>(i) / kPairs;
        const double wave = 0.1 * std::sin(400 * turn);
        side.points.push_back(
            {back + chord * (1 + std::cos(turn)) / 2, (0.09 * chord + wave) * std::sin(turn)});
        if (i % 100 == 0)
            side.sync.push_back(i);
    }
    return side;
}

CutShown shown_wing() {
    auto cut = cut_of({.A = section(340, 0), .B = section(120, 180)}, CutStage::after,
                      {.X = 100, .Y = 200, .Z = 400}, {});
    const double all = cut.wire.length();
    return {.cut = std::make_shared<const CutAtHand>(std::move(cut)),
            .plane = CutPlane::piece,
            .joins = {},
            .along = all,
            .mark = {}};
}

void turn_in_space(benchmark::State& state) {
    have_application();
    const CutShown shown = shown_wing();
    const CutScene scene = *scene_of(*shown.cut);
    const CutColours colours = cut_colours(QPalette(Qt::white));
    cutview::SpaceView view;
    view.set_room(kSize.width(), kSize.height());
    const auto outermost = outermost_of(scene);
    view.fit(outermost);
    view.zoom(static_cast<double>(state.range(0)), {kSize.width() / 2.0, kSize.height() / 2.0});
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    for ([[maybe_unused]] auto _ : state) {
        view.turn_by(1.5, 0);
        image.fill(colours.ground);
        QPainter painter(&image);
        draw_space(painter, shown, scene, view, colours);
    }
}
BENCHMARK(turn_in_space)
    ->Name("turning 20000 joined pairs, all cut")
    ->Arg(1)
    ->Arg(4)
    ->ArgName("zoom")
    ->Unit(benchmark::kMillisecond);

void draw_both_sides(benchmark::State& state) {
    have_application();
    const CutShown shown = shown_wing();
    const CutColours colours = cut_colours(QPalette(Qt::white));
    cutview::PlaneView view;
    view.set_room(kSize.width(), kSize.height());
    view.fit(extent_of_sides(shown));
    view.zoom(static_cast<double>(state.range(0)), {300, 350});
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    for ([[maybe_unused]] auto _ : state) {
        view.move({0.5, 0});
        image.fill(colours.ground);
        QPainter painter(&image);
        draw_sides(painter, shown, view, colours);
        draw_wire_on_sides(painter, shown, view, colours);
    }
}
BENCHMARK(draw_both_sides)
    ->Name("both outlines of 20000 joined pairs")
    ->Arg(1)
    ->Arg(20)
    ->ArgName("zoom")
    ->Unit(benchmark::kMillisecond);

void look_at_a_cut(benchmark::State& state) {
    const auto sides = shown_wing().cut->given;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(
            cut_of(sides, CutStage::after, {.X = 100, .Y = 200, .Z = 400}, {}));
}
BENCHMARK(look_at_a_cut)
    ->Name("wire, report and numbers of 20000 joined pairs")
    ->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora
