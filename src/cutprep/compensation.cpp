#include "cutprep/compensation.h"

#include "runtime/numbers.h"

#include <cmath>

namespace velmora {

namespace {

using runtime::checked;
using runtime::divide;

/// Keeps the division of a vertical chord alive.
constexpr double kNoWidth = 1E-15;

/// Steepness of a chord as an angle from 0 to a quarter turn.
double steepness(const Pto& from, const Pto& to) {
    const double width = to.X == from.X ? kNoWidth : checked(to.X - from.X);
    return std::fabs(std::atan(divide(checked(to.Y - from.Y), width)));
}

} // namespace

// A vertical chord leaves the place of the point before it, (0, 0) at the start: on purpose.
Array<Pto> compensated(const Array<Pto>& outline, double merma) {
    Array<Pto> parallel = outline;
    double nx = 0;
    double ny = 0;
    for (std::int32_t i = 0; i < outline.upper(); ++i) {
        const Pto& from = outline[i];
        const Pto& to = outline[i + 1];
        const double a = steepness(from, to);
        if (from.X < to.X) {
            nx = checked(from.X + std::sin(a) * merma);
            ny = checked(from.Y - std::cos(a) * merma);
        } else if (from.X > to.X) {
            nx = checked(from.X - std::sin(a) * merma);
            ny = checked(from.Y + std::cos(a) * merma);
        }
        parallel[i].X = nx;
        parallel[i].Y = ny;
    }
    return parallel;
}

} // namespace velmora
