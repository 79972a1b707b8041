#include "canvas/view.h"

#include "document/forma.h"
#include "document/state/view.h"
#include "platform/platform.h"
#include "runtime/numbers.h"

#include <cmath>
#include <limits>

namespace velmora {

namespace {

double middle_of(double twips) {
    return twips / (2 * kCanvasTwips);
}

} // namespace

double origin_on_x(double smallest, double width) {
    return smallest >= 0 ? kCanvasMargin : middle_of(width);
}

double origin_on_y(double smallest, double height) {
    return smallest >= 0 ? height / kCanvasTwips - kCanvasMargin : middle_of(height);
}

bool picture_shown() {
    return (has_shape() || state::view.PtosToInsertMode) && !state::view.NoRedraw;
}

Spot origin_seen() {
    const Surface& pic = platform().pic;
    return {origin_on_x(state::view.MinXForma, pic.Width()),
            origin_on_y(state::view.MinYForma, pic.Height())};
}

double canvas_x(double x) {
    return runtime::checked(state::view.ZoomFactor * x + state::view.CanvasX0);
}

double canvas_y(double y) {
    return runtime::checked(state::view.CanvasY0 - state::view.ZoomFactor * y);
}

double world_x(double px) {
    return runtime::divide(px - state::view.CanvasX0, state::view.ZoomFactor);
}

double world_y(double py) {
    return -runtime::divide(py - state::view.CanvasY0, state::view.ZoomFactor);
}

std::int32_t to_pixel(double position) {
    // Half a pixel more than the largest number is a tie that goes up, beyond 32 bits.
    constexpr double least = std::numeric_limits<std::int32_t>::min() - 0.5;
    constexpr double most = std::numeric_limits<std::int32_t>::max() + 0.5;
    if (!(position >= least && position < most))
        raise(error::overflow);
    // At this size an f64 holds whole numbers alone: the addition itself rounds, ties to even.
    constexpr double whole_numbers = 6755399441055744.0;
    return static_cast<std::int32_t>((position + whole_numbers) - whole_numbers);
}

PixelPoint pixel_of(const Pto& point) {
    return {to_pixel(state::view.ZoomFactor * point.X + state::view.CanvasX0),
            to_pixel(state::view.CanvasY0 - state::view.ZoomFactor * point.Y)};
}

float to_single(double position) {
    const auto single = static_cast<float>(position);
    if (!std::isfinite(single))
        raise(error::overflow);
    return single;
}

} // namespace velmora
