#include "cad/spline.h"

#include "cad/entity_counters.h"
#include "document/number_text.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

#include <cmath>

namespace velmora {

namespace {

Pto normalised(double X, double Y) {
    return {.X = Normaliza15(runtime::checked(X)), .Y = Normaliza15(runtime::checked(Y))};
}

Pto curve_point(std::span<const Pto> control_points, double t) {
    const auto degree = static_cast<std::int32_t>(control_points.size()) - 1;
    double X = 0;
    double Y = 0;
    for (std::int32_t j = 0; j <= degree; ++j) {
        const Pto& control = control_points[static_cast<std::size_t>(j)];
        const double weight = Bernstein(j, degree, t);
        X += weight * control.X;
        Y += weight * control.Y;
    }
    return normalised(X, Y);
}

} // namespace

double Factorial(std::int32_t v) {
    double product = 1;
    for (std::int32_t factor = 2; factor <= v; ++factor)
        product = runtime::checked(factor * product);
    return product;
}

double Binomial(std::int32_t n, std::int32_t i) {
    return runtime::divide(Factorial(n), runtime::checked(Factorial(i) * Factorial(n - i)));
}

double Bernstein(std::int32_t i, std::int32_t n, double t) {
    return Binomial(n, i) * std::pow(t, i) * std::pow(1 - t, n - i);
}

Array<Pto> capture_spline(std::span<const Pto> control_points) {
    if (control_points.empty())
        raise(error::subscript);
    const Pto& first = control_points.front();
    const Pto& last = control_points.back();
    Array<Pto> points;
    start_entity_progress(52);
    points.append(normalised(first.X, first.Y));
    step_entity_progress();
    // The steps add up in f64 and pass 1 after 50 of them, so that t = 1 itself is never taken.
    for (double t = 0; t <= 1; t += 0.02) {
        points.append(curve_point(control_points, t));
        step_entity_progress();
    }
    points.append(normalised(last.X, last.Y));
    step_entity_progress();
    return points;
}

} // namespace velmora
