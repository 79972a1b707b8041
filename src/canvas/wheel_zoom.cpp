#include "canvas/wheel_zoom.h"

#include "canvas/fit.h"
#include "canvas/surface.h"
#include "canvas/view.h"
#include "canvas/zoom.h"
#include "document/feedback.h"
#include "document/forma.h"
#include "document/selection.h"
#include "document/state/document.h"
#include "document/state/view.h"
#include "platform/platform.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kStep = 1.1;
constexpr int kDigits = 6;
constexpr double kSmallestShape = 10; ///< pixels
constexpr double kLeastZoom = 1e-9;
constexpr double kMostZoom = 1e9;

double few_digits(double zoom) {
    const int decimals = kDigits - 1 - static_cast<int>(std::floor(std::log10(zoom)));
    const double unit = std::pow(10.0, -decimals);
    return runtime::normalized_15(std::round(zoom / unit) * unit);
}

/// Pixels from the origin, at a zoom `ratio` times the present one.
bool on_canvas(Spot from_origin, Spot origin, double ratio) {
    const double x = origin.x + from_origin.x * ratio;
    const double y = origin.y + from_origin.y * ratio;
    return x >= 0 && y >= 0 && x < platform().pic.Width() / kCanvasTwips &&
           y < platform().pic.Height() / kCanvasTwips;
}

double least_zoom() {
    const WorldBox box = box_of(Forma.Pto.all());
    const double extent = std::max(box.right - box.left, box.top - box.bottom);
    return extent > 0 ? std::max(kLeastZoom, kSmallestShape / extent) : kLeastZoom;
}

/// As many of the steps as there is room for.
int steps_out(double zoom, int steps) {
    const double least = least_zoom();
    while (steps < 0 && zoom_by_steps(zoom, steps) < least)
        ++steps;
    return steps;
}

int steps_in(double zoom, int steps, Spot from_origin, Spot origin) {
    const auto fits = [&](double to) {
        return to <= kMostZoom && on_canvas(from_origin, origin, to / zoom);
    };
    while (steps > 0 && !fits(zoom_by_steps(zoom, steps)))
        --steps;
    return steps;
}

/// The band of points put in by hand begins again at the last one: the old one is gone with the
/// picture.
void start_band_over() {
    if (!state::view.PtosToInsertMode || !has_selection())
        return;
    state::view.BandaX = Forma.Pto[state::document.PtoSel].X;
    state::view.BandaY = Forma.Pto[state::document.PtoSel].Y;
}

void zoom_keeping(Spot pointer, Spot world, double zoom) {
    const Spot middle = state::Velmora.SSScroll_visible.middle();
    zoom_to(zoom);
    state::Velmora.SSScroll_middle =
        Spot{canvas_x(world.x) + middle.x - pointer.x, canvas_y(world.y) + middle.y - pointer.y};
    ++state::Velmora.SSScroll_moves;
    start_band_over();
}

} // namespace

double zoom_by_steps(double zoom, int steps) {
    return few_digits(zoom * std::pow(kStep, steps));
}

void zoom_around(Spot pointer, int steps) {
    if (!picture_shown() || steps == 0)
        return;
    const double zoom = state::view.ZoomFactor > 0 ? state::view.ZoomFactor : 1;
    const Spot origin = origin_seen();
    const Spot from_origin{pointer.x - origin.x, pointer.y - origin.y};
    const int taken =
        steps > 0 ? steps_in(zoom, steps, from_origin, origin) : steps_out(zoom, steps);
    if (taken == 0 && steps > 0)
        set_status(GetMensaje(message::canvas_ends));
    if (taken != 0)
        zoom_keeping(pointer, {from_origin.x / zoom, -from_origin.y / zoom},
                     zoom_by_steps(zoom, taken));
}

} // namespace velmora
