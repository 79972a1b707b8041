#include "runtime/exact_scaling.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace velmora::runtime {
namespace {

struct Halves {
    double high, low;
};

/// Two parts of 26 bits each, whose products with each other are exact.
Halves split(double value) {
    const double shifted = value * 134217729.0; // 2^27 + 1
    const double high = shifted - (shifted - value);
    return {high, value - high};
}

/// What the product a * b lost when it was rounded to `product`, exactly. (std::fma would do, but
/// not every C library rounds it once.)
double lost_by_product(double a, double b, double product) {
    const Halves x = split(a);
    const Halves y = split(b);
    return ((x.high * y.high - product) + x.high * y.low + x.low * y.high) + x.low * y.low;
}

/// The decimal place of the first digit of a normal number, or the place below: 0 for units.
int first_place_at_least(double magnitude) {
    constexpr double log10_of_2 = 0.30102999566398120;
    const auto biased = static_cast<int>(std::bit_cast<std::uint64_t>(magnitude) >> 52U);
    return static_cast<int>(std::floor((biased - 1023) * log10_of_2));
}

} // namespace

double nearest_whole(double value, double power) {
    const double product = value * power;
    const double whole = std::nearbyint(product);
    const double rest = product - whole;
    // Short of a half, the rest is short by a whole unit in the last place of the product, and the
    // product lost half a unit at most: only a half can be an illusion.
    if (std::abs(rest) != 0.5)
        return whole;
    const double lost = lost_by_product(value, power, product);
    if (rest > 0 && lost > 0)
        return whole + 1;
    if (rest < 0 && lost < 0)
        return whole - 1;
    return whole;
}

std::optional<FifteenDigits> fifteen_digits(double value) {
    const double magnitude = std::abs(value);
    if (!(magnitude >= 1e-7 && magnitude < 1e15))
        return std::nullopt;
    int decimals = 14 - first_place_at_least(magnitude);
    // A product that only rounds up to 1e15 or 1e14 gives that power of ten with one digit more or
    // less: the same number.
    if (magnitude * powers_of_ten[static_cast<std::size_t>(decimals)] >= 1e15)
        --decimals;
    return FifteenDigits{nearest_whole(value, powers_of_ten[static_cast<std::size_t>(decimals)]),
                         decimals};
}

} // namespace velmora::runtime
