#include "runtime/error.h"
#include "runtime/exact_scaling.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmora::runtime {
namespace {

constexpr int significant_digits = 15;

/// The magnitude of a number as 0.d1d2d3... times 10 to the power `point`, without zeros at the
/// end; no digits is zero.
struct Decimal {
    std::array<char, 20> digits{};
    int count = 0;
    int point = 0;
    bool negative = false;

    /// The digits from one index up to another; zeros where there are none.
    void append_to(std::string& text, int from, int to) const {
        const int first = std::clamp(0, from, to);
        const int last = std::clamp(count, first, to);
        text.append(static_cast<std::size_t>(first - from), '0');
        if (last > first)
            text.append(digits.data() + first, static_cast<std::size_t>(last - first));
        text.append(static_cast<std::size_t>(to - last), '0');
    }
};

void drop_zeros(Decimal& number) {
    while (number.count > 0 && number.digits[static_cast<std::size_t>(number.count) - 1] == '0')
        --number.count;
}

/// Takes "-1.2345e-05" apart.
Decimal parts_of(std::string_view scientific) {
    Decimal number;
    number.negative = scientific.starts_with('-');
    const auto e = scientific.find('e');
    for (const char c : scientific.substr(0, e)) {
        if (c >= '0' && c <= '9')
            number.digits[static_cast<std::size_t>(number.count++)] = c;
    }
    auto exponent = scientific.substr(e + 1);
    if (exponent.starts_with('+'))
        exponent.remove_prefix(1);
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), number.point);
    ++number.point;
    drop_zeros(number);
    return number;
}

Decimal parts_of(const FifteenDigits& scaled) {
    Decimal number;
    number.negative = scaled.whole < 0;
    const auto magnitude = static_cast<std::uint64_t>(std::abs(scaled.whole));
    char* const start = number.digits.data();
    const auto end = std::to_chars(start, start + number.digits.size(), magnitude);
    number.count = static_cast<int>(end.ptr - start);
    number.point = number.count - scaled.decimals;
    drop_zeros(number);
    return number;
}

/// A number with 15 significant digits.
Decimal decimal_15(double value) {
    if (const auto scaled = fifteen_digits(value))
        return parts_of(*scaled);
    std::array<char, 40> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), checked(value),
                                   std::chars_format::scientific, significant_digits - 1);
    return parts_of({text.data(), end.ptr});
}

enum class Tie { to_even, away };

/// One unit more in the last digit; of no digit, the unit of the place before the first.
void count_up(Decimal& number) {
    while (number.count > 0 && number.digits[static_cast<std::size_t>(number.count) - 1] == '9')
        --number.count;
    if (number.count > 0) {
        ++number.digits[static_cast<std::size_t>(number.count) - 1];
        return;
    }
    number.digits[0] = '1';
    number.count = 1;
    ++number.point;
}

/// Cuts the digits after `decimals` places.
void round_at(Decimal& number, int decimals, Tie tie) {
    const int kept = number.point + decimals;
    if (kept >= number.count)
        return;
    if (kept < 0) {
        number.count = 0;
        return;
    }
    const auto index = static_cast<std::size_t>(kept);
    const char next = number.digits[index];
    const bool half = next == '5' && kept + 1 == number.count;
    const bool odd = kept > 0 && (number.digits[index - 1] - '0') % 2 != 0;
    number.count = kept;
    if (half ? tie == Tie::away || odd : next >= '5')
        count_up(number);
    else
        drop_zeros(number);
}

/// Digits in their places, at least one before the separator and `decimals` after it.
std::string positional(const Decimal& number, int decimals, char separator) {
    std::string text;
    if (number.negative && number.count > 0)
        text += '-';
    number.append_to(text, std::min(number.point - 1, 0), number.point);
    if (decimals == 0)
        return text;
    text += separator;
    number.append_to(text, number.point, number.point + decimals);
    return text;
}

std::string without_spare_zeros(const Decimal& number, char separator) {
    if (number.count == 0)
        return "0";
    return positional(number, std::max(number.count - number.point, 0), separator);
}

std::string exponent_form(const Decimal& number, char separator) {
    std::string text(number.negative ? "-" : "");
    text += number.digits[0];
    if (number.count > 1) {
        text += separator;
        text.append(&number.digits[1], static_cast<std::size_t>(number.count) - 1);
    }
    const int exponent = number.point - 1;
    text += exponent < 0 ? "E-" : "E+";
    if (std::abs(exponent) < 10)
        text += '0';
    return text + std::to_string(std::abs(exponent));
}

/// The number as the decimal type would hold it.
Decimal as_decimal_type(double value) {
    constexpr double limit = 79228162514264337593543950336.0; // no f64 lies between it and the rule
    constexpr int most_decimals = 28;
    if (!(std::abs(value) < limit))
        raise(error::overflow);
    Decimal number = decimal_15(value);
    round_at(number, most_decimals, Tie::to_even);
    return number;
}

} // namespace

std::string CStr(double value, char separator) {
    if (value == 0)
        return "0";
    const Decimal number = decimal_15(value);
    if (number.point < -3 || number.point > significant_digits)
        return exponent_form(number, separator);
    return without_spare_zeros(number, separator);
}

std::string CStr(std::int32_t value) {
    return std::to_string(value);
}

std::string NumACadena(double value, char separator) {
    if (value == 0)
        return "0";
    return without_spare_zeros(as_decimal_type(value), separator);
}

std::string Format5(double value, char separator) {
    constexpr int decimals = 5;
    Decimal number;
    if (value != 0)
        number = decimal_15(value);
    round_at(number, decimals, Tie::away);
    return positional(number, decimals, separator);
}

} // namespace velmora::runtime
