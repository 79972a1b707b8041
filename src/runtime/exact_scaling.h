// Scaling an f64 by a power of ten without losing what it exactly holds: the short way of rounding
// and of the 15 significant digits.
#pragma once

#include <array>
#include <optional>

namespace velmora::runtime {

/// All powers of ten that f64 holds exactly.
inline constexpr std::array<double, 23> powers_of_ten = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
inline constexpr int most_decimals = 22;

/// The whole number nearest to value * power, ties to even, judged by the exact product. The
/// product must stay below 2^51, the power must be one of the table.
[[nodiscard]] double nearest_whole(double value, double power);

/// A number with 15 significant digits: whole / 10^decimals, the sign in the whole number.
struct FifteenDigits {
    double whole;
    int decimals;
};
/// The 15 significant digits of a number from 1e-7 up to 1e15, exact ties to even; nothing for
/// others.
[[nodiscard]] std::optional<FifteenDigits> fifteen_digits(double value);

} // namespace velmora::runtime
