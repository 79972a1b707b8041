#include "runtime/error.h"
#include "runtime/exact_scaling.h"
#include "runtime/numbers.h"

#include <array>
#include <charconv>
#include <cmath>

namespace velmora::runtime {
namespace {

double through_text(double value, int decimals) {
    std::array<char, 64> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::fixed, decimals);
    double result = 0;
    std::from_chars(text.data(), end.ptr, result);
    return result;
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
    const double power = powers_of_ten[static_cast<std::size_t>(decimals)];
    if (magnitude * power >= safe)
        return through_text(value, decimals);
    // Both numbers are exact in f64, so the one division is the f64 nearest to the decimal: the
    // same bits as the way through text. Adding 0 drops the sign of a zero.
    return nearest_whole(value, power) / power + 0.0;
}

double normalized_15(double value) {
    // Exact by the same division; with 22 decimals at most, the limit of 28 cuts nothing.
    if (const auto number = fifteen_digits(value))
        return number->whole / powers_of_ten[static_cast<std::size_t>(number->decimals)];
    return CDbl(NumACadena(value, '.'), '.');
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
