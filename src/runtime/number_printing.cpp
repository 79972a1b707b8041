#include "runtime/error.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <span>

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

    /// The digit at a place of the positional form: place 0 stands before the separator.
    [[nodiscard]] char at(int place) const {
        const int index = point - 1 - place;
        return index >= 0 && index < count ? digits[static_cast<std::size_t>(index)] : '0';
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

/// A number with 15 significant digits. The shortest text that gives the same f64 back is much
/// cheaper than an exact one; where it has 15 digits or fewer it is the answer too, as any decimal
/// of 15 digits comes back from the nearest normal f64 unchanged. Below the normal f64 that does
/// not hold.
Decimal decimal_15(double value) {
    std::array<char, 40> text;
    const auto end = text.data() + text.size();
    constexpr double smallest_normal = 2.2250738585072014e-308;
    if (std::abs(checked(value)) >= smallest_normal) {
        const auto shortest = std::to_chars(text.data(), end, value, std::chars_format::scientific);
        const Decimal number = parts_of({text.data(), shortest.ptr});
        if (number.count <= significant_digits)
            return number;
    }
    const auto exact = std::to_chars(text.data(), end, value, std::chars_format::scientific,
                                     significant_digits - 1);
    return parts_of({text.data(), exact.ptr});
}

enum class Tie { to_even, away };

/// Cuts the digits behind `decimals` places.
void round_at(Decimal& number, int decimals, Tie tie) {
    const int kept = number.point + decimals;
    if (kept >= number.count)
        return;
    if (kept < 0) {
        number.count = 0;
        return;
    }
    auto digits = std::span(number.digits);
    const auto index = static_cast<std::size_t>(kept);
    const bool half = digits[index] == '5' && kept + 1 == number.count;
    const bool odd = kept > 0 && (digits[index - 1] - '0') % 2 != 0;
    const bool up = half ? tie == Tie::away || odd : digits[index] >= '5';
    number.count = kept;
    if (up) {
        int last = kept;
        while (last > 0 && digits[static_cast<std::size_t>(last) - 1] == '9')
            --last;
        if (last == 0) {
            digits[0] = '1';
            ++number.point;
            number.count = 1;
            return;
        }
        ++digits[static_cast<std::size_t>(last) - 1];
        number.count = last;
    }
    drop_zeros(number);
}

/// Digits in their places, at least one before the separator and `decimals` behind it.
std::string positional(const Decimal& number, int decimals, char separator) {
    std::string text;
    if (number.negative && number.count > 0)
        text += '-';
    for (int place = std::max(number.point, 1) - 1; place >= 0; --place)
        text += number.at(place);
    if (decimals > 0)
        text += separator;
    for (int place = -1; place >= -decimals; --place)
        text += number.at(place);
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

double normalized_15(double value) {
    if (value == 0)
        return 0;
    const Decimal number = as_decimal_type(value);
    std::array<char, 40> text;
    char* end = text.data();
    if (number.negative && number.count > 0)
        *end++ = '-';
    *end++ = '0';
    *end++ = '.';
    end = std::copy_n(number.digits.data(), number.count, end);
    *end++ = 'e';
    end = std::to_chars(end, text.data() + text.size(), number.point).ptr;
    double result = 0;
    std::from_chars(text.data(), end, result);
    return result;
}

} // namespace velmora::runtime
