#include "canvas/fit.h"

#include "canvas/surface.h"
#include "canvas/view.h"
#include "canvas/zoom.h"
#include "document/extents.h"
#include "document/refresh.h"
#include "document/selection.h"
#include "document/state/document.h"
#include "document/state/view.h"
#include "platform/platform.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <vector>

namespace velmora {

namespace {

constexpr int kDigits = 4;
constexpr std::int32_t kNeighbours = 5;
constexpr double kLeast = 1e-9;
constexpr double kMost = 1e9;
constexpr double kNoLimit = std::numeric_limits<double>::infinity();

/// The zoom at which `extent` units are `room` pixels.
double limit(double room, double extent) {
    return extent > 0 ? std::max(room, 1.0) / extent : kNoLimit;
}

/// On one axis, from its origin: `above` pixels for what is positive, `below` for the rest.
double limit_from_origin(double smallest, double largest, double above, double below) {
    return std::min(limit(above, largest), limit(below, -smallest));
}

/// On one axis, with the middle in the middle.
double limit_by_window(double smallest, double largest, double middle, double visible) {
    const double half = std::max(largest - middle, middle - smallest);
    return limit(visible / 2 - kCanvasMargin, half);
}

/// Not above the zoom, so that what fits by it fits by the rounded one too.
double few_digits_below(double zoom) {
    const int decimals = kDigits - 1 - static_cast<int>(std::floor(std::log10(zoom)));
    const double unit = std::pow(10.0, -decimals);
    return runtime::normalized_15(std::floor(zoom / unit * (1 + 1e-12)) * unit);
}

void show_middle(Spot middle) {
    state::Velmora.SSScroll_middle = Spot{canvas_x(middle.x), canvas_y(middle.y)};
    ++state::Velmora.SSScroll_moves;
}

void fit(const WorldBox& box, Spot middle) {
    const auto zoom = fitting_zoom(box, middle, state::Velmora.SSScroll_visible, canvas_reach());
    zoom_to(zoom.value_or(state::view.ZoomFactor));
    show_middle(middle);
}

/// The selected point and those beside it.
std::vector<Pto> neighbourhood() {
    const std::int32_t count = Forma.Pto.upper() + 1;
    const std::int32_t beside = std::min(kNeighbours, count / 2);
    std::vector<Pto> points;
    for (std::int32_t step = -beside; step <= beside; ++step)
        points.push_back(Forma.Pto[(state::document.PtoSel + step + count) % count]);
    return points;
}

} // namespace

WorldBox box_of(std::span<const Pto> points) {
    const Pto& first = points.front();
    WorldBox box{first.X, first.Y, first.X, first.Y};
    for (const Pto& point : points) {
        box.left = std::min(box.left, point.X);
        box.bottom = std::min(box.bottom, point.Y);
        box.right = std::max(box.right, point.X);
        box.top = std::max(box.top, point.Y);
    }
    return box;
}

CanvasReach canvas_reach() {
    const double width = platform().pic.Width();
    const double height = platform().pic.Height();
    return {.x0 = origin_on_x(GetMinX("0"), width),
            .y0 = origin_on_y(GetMinY("0"), height),
            .left = kCanvasMargin,
            .top = kCanvasMargin,
            .right = width / kCanvasTwips - kCanvasMargin,
            .bottom = height / kCanvasTwips - kCanvasMargin};
}

std::optional<double> fitting_zoom(const WorldBox& box, Spot middle, const VisibleBox& visible,
                                   const CanvasReach& reach) {
    if (box.left == box.right && box.bottom == box.top)
        return {};
    const double zoom = std::min(
        {kMost, limit_by_window(box.left, box.right, middle.x, visible.width),
         limit_by_window(box.bottom, box.top, middle.y, visible.height),
         limit_from_origin(box.left, box.right, reach.right - reach.x0, reach.x0 - reach.left),
         limit_from_origin(box.bottom, box.top, reach.y0 - reach.top, reach.bottom - reach.y0)});
    if (!(zoom >= kLeast))
        return {};
    return few_digits_below(zoom);
}

void fit_shape() {
    const WorldBox box = box_of(Forma.Pto.all());
    fit(box, {std::midpoint(box.left, box.right), std::midpoint(box.bottom, box.top)});
}

void fit_selected_point() {
    if (!has_selection())
        return fit_shape();
    const Pto& selected = Forma.Pto[state::document.PtoSel];
    fit(box_of(neighbourhood()), {selected.X, selected.Y});
}

} // namespace velmora
