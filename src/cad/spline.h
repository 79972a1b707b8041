// A captured spline: its control points as those of one Bézier curve of their full degree.
#pragma once

#include "document/forma.h"

#include <cstdint>
#include <span>

namespace velmora {

/// v! in f64. Raises 6 beyond f64, from 171! on.
[[nodiscard]] double Factorial(std::int32_t v);
/// n over i. Raises as Factorial.
[[nodiscard]] double Binomial(std::int32_t n, std::int32_t i);
/// The Bernstein polynomial i of degree n at t; 0^0 is 1. Raises as Factorial.
[[nodiscard]] double Bernstein(std::int32_t i, std::int32_t n, double t);

/// 52 points whatever the number of control points: the first one, t = 0, 0.02 .. 0.98, the last
/// one. Raises 9 without control points, 6 where the factorial of their degree does.
[[nodiscard]] Array<Pto> capture_spline(std::span<const Pto> control_points);

} // namespace velmora
