#include "shapeops/scaling.h"

#include "document/extents.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "shapeops/framed.h"

#include <cmath>
#include <limits>

namespace velmora {

namespace {

using runtime::checked;
using runtime::divide;

double times_15(double factor, double value) {
    return Normaliza15(checked(factor * value));
}

void multiply_all(double factor) {
    for (Pto& point : Forma.Pto.all()) {
        point.X = times_15(factor, point.X);
        point.Y = times_15(factor, point.Y);
    }
}

void divide_all(double divisor) {
    for (Pto& point : Forma.Pto.all()) {
        point.X = Normaliza15(divide(point.X, divisor));
        point.Y = Normaliza15(divide(point.Y, divisor));
    }
}

// Multiplying by the reciprocal and dividing round differently in the last digit; each branch keeps
// its own way.
void scale_to_unit() {
    const double mx = GetMaxX("0");
    const double my = GetMaxY("0");
    const double larger = mx >= my ? mx : my;
    if (mx > 1 || my > 1)
        return divide_all(larger);
    if (mx == 1 || my == 1)
        return;
    multiply_all(larger == 0 ? 1.0 : divide(1, larger));
}

/// The size is measured from the origin to the far side of the shape, not across the shape.
double size_factor(double target, double maximum, double minimum) {
    return divide(target, std::fabs(maximum <= 0 ? minimum : maximum));
}

/// `scale` for every point. The count runs in 16 bits, on purpose: the step past 32767 overflows,
/// with the points up to there scaled.
template <class Scale>
void for_each_in_16_bits(Scale&& scale) {
    const std::int32_t upper = Forma.Pto.upper();
    for (std::int32_t i = 0; i <= upper; ++i) {
        scale(Forma.Pto[i]);
        if (i == std::numeric_limits<std::int16_t>::max())
            raise(error::overflow);
    }
}

void scale_xy(double xval, double yval, std::int16_t by_size) {
    const double max_x = GetMaxX("0");
    const double max_y = GetMaxY("0");
    const double min_x = GetMinX("0");
    const double min_y = GetMinY("0");
    if (by_size == 0)
        return for_each_in_16_bits([&](Pto& point) {
            point.X = Normaliza15(checked(point.X * xval) / 100);
            point.Y = Normaliza15(checked(point.Y * yval) / 100);
        });
    const double sx = size_factor(xval, max_x, min_x);
    const double sy = size_factor(yval, max_y, min_y);
    for_each_in_16_bits([&](Pto& point) {
        point.X = times_15(sx, point.X);
        point.Y = times_15(sy, point.Y);
    });
}

} // namespace

void ScaleToUnit() {
    framed("Error ScaleToUnit nº: ", message::scaling, message::scaled, scale_to_unit);
}

void ScaleXY(double xval, double yval, std::int16_t by_size) {
    framed("Error ScaleXY nº: ", message::scaling, message::scaled,
           [&] { scale_xy(xval, yval, by_size); });
}

} // namespace velmora
