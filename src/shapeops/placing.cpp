#include "shapeops/placing.h"

#include "document/forma.h"
#include "document/state/program.h"
#include "runtime/numbers.h"

#include <cmath>

namespace velmora {

namespace {

using runtime::checked;
using runtime::divide;

/// Angle of the chord from the pivot in degrees, `angle` added, at most once reduced by a turn.
double turned(double dx, double dy, double angle) {
    const double base = dx == 0 ? 0 : std::atan(divide(dy, dx)) * 180 / state::program.PI;
    double degrees = angle + base;
    if (dx < 0)
        degrees = base + 180 + angle;
    else if (dy < 0)
        degrees = base + 360 + angle;
    return degrees >= 360 ? degrees - 360 : degrees;
}

} // namespace

void rotate_about(const Pto& pivot, double angle) {
    const double cx = pivot.X;
    const double cy = pivot.Y;
    for (Pto& point : Forma.Pto.all()) {
        const double dx = checked(point.X - cx);
        const double dy = checked(point.Y - cy);
        const double radius = std::sqrt(checked(dx * dx + dy * dy));
        const double radians = state::program.PI * turned(dx, dy, angle) / 180;
        point.X = checked(std::cos(radians) * radius + cx);
        point.Y = checked(std::sin(radians) * radius + cy);
    }
}

void translate_to_origin(const Pto& origin) {
    const double cx = origin.X;
    const double cy = origin.Y;
    for (Pto& point : Forma.Pto.all()) {
        point.X = checked(point.X - cx);
        point.Y = checked(point.Y - cy);
    }
}

} // namespace velmora
