#include "runtime/error.h"
#include "runtime/numbers.h"

#include <array>
#include <charconv>
#include <cmath>

namespace velmora::runtime {
namespace {

constexpr int most_decimals = 22;
constexpr std::array<double, most_decimals + 1> power_of_ten = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

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

double through_text(double value, int decimals) {
    std::array<char, 64> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::fixed, decimals);
    double result = 0;
    std::from_chars(text.data(), end.ptr, result);
    return result;
}

/// The whole number nearest to value * power, ties to even, judged by the exact product.
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

} // namespace

double Round(double value, int decimals) {
    if (decimals < 0 || decimals > most_decimals)
        raise(error::invalid_call);
    constexpr double all_whole = 4503599627370496.0; // 2^52: from here on f64 has no fractions
    constexpr double safe = all_whole / 2;
    const double magnitude = std::abs(checked(value));
    if (magnitude >= all_whole)
        return value;
    const double power = power_of_ten[static_cast<std::size_t>(decimals)];
    if (magnitude * power >= safe)
        return through_text(value, decimals);
    // Both numbers are exact in f64 (the powers of ten are, up to 22), so the one division is the
    // f64 nearest to the decimal: the same bits as the way through text. Adding 0 drops the sign
    // of a zero.
    return nearest_whole(value, power) / power + 0.0;
}

double Int(double value) {
    return std::floor(value);
}

double checked(double value) {
    if (!std::isfinite(value))
        raise(error::overflow);
    return value;
}

double divide(double x, double y) {
    if (y == 0)
        raise(x == 0 ? error::overflow : error::division_by_zero);
    return checked(x / y);
}

} // namespace velmora::runtime
