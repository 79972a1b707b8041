#include "runtime/error.h"
#include "runtime/exact_scaling.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace velmora::runtime {
namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view without_margins(std::string_view text) {
    const auto is_margin = [](char c) {
        return c == ' ' || c == '\t';
    };
    while (!text.empty() && is_margin(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && is_margin(text.back()))
        text.remove_suffix(1);
    return text;
}

/// The decimal exponent as written, held within what can still be added to.
long written_exponent(std::string_view digits) {
    long exponent = 0;
    const bool negative = digits.starts_with('-');
    for (const char c : digits) {
        if (is_digit(c))
            exponent = std::min(exponent * 10 + (c - '0'), 100'000'000L);
    }
    return negative ? -exponent : exponent;
}

/// Whether a number that f64 can't hold is too large for it, and not too small: whether its first
/// digit other than 0 comes before the point once the exponent is applied.
bool is_large(std::string_view number) {
    const auto e = std::min(number.find_first_of("Ee"), number.size());
    const auto mantissa = number.substr(0, e);
    const auto point = std::min(mantissa.find('.'), e);
    const auto first = mantissa.find_first_of("123456789");
    const long place = static_cast<long>(point) - static_cast<long>(first);
    return place + (e < number.size() ? written_exponent(number.substr(e + 1)) : 0) > 0;
}

struct Reading {
    double value = 0;
    std::size_t used = 0; ///< 0: there is no number at the start
};

/// The number at the start of a text with '.' as separator. The names that from_chars would take
/// for infinity and NaN are not numbers here.
Reading read_number(std::string_view text) {
    std::size_t start = text.starts_with('+') ? 1 : 0;
    const std::size_t body = text.starts_with('-') ? 1 : start;
    if (body >= text.size() || !(is_digit(text[body]) || text[body] == '.'))
        return {};
    Reading reading;
    const char* end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data() + start, end, reading.value);
    if (fault == std::errc::invalid_argument)
        return {};
    reading.used = static_cast<std::size_t>(stop - text.data());
    const auto number = text.substr(start, reading.used - start);
    // Libraries differ in what they report and leave when a number is too small for f64.
    if (fault == std::errc::result_out_of_range)
        reading.value = is_large(number) ? std::numeric_limits<double>::infinity() : 0.0;
    return reading;
}

/// Most coordinates: a sign, up to 15 digits, a separator. Digits and power of ten are exact in f64
/// then, so the one division gives the nearest f64.
std::optional<double> plain_number(std::string_view text, char separator) {
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    std::uint64_t digits = 0;
    std::size_t count = 0;
    std::size_t decimals = 0;
    bool separated = false;
    for (const char c : text) {
        if (is_digit(c)) {
            digits = digits * 10 + static_cast<std::uint64_t>(c - '0');
            ++count;
            decimals += separated ? 1 : 0;
        } else if (c == separator && !separated) {
            separated = true;
        } else {
            return std::nullopt;
        }
    }
    constexpr std::size_t most_digits = 15;
    if (count == 0 || count > most_digits)
        return std::nullopt;
    const double value = static_cast<double>(digits) / powers_of_ten[decimals];
    return negative ? -value : value;
}

double whole_text(std::string_view text) {
    const Reading reading = read_number(text);
    if (reading.used == 0 || reading.used != text.size())
        raise(error::type_mismatch);
    return checked(reading.value);
}

double with_point(std::string_view text) {
    if (text.find('.') != std::string_view::npos)
        raise(error::type_mismatch);
    std::array<char, 64> short_text;
    if (text.size() <= short_text.size()) {
        const auto end = std::replace_copy(text.begin(), text.end(), short_text.begin(), ',', '.');
        return whole_text({short_text.data(), static_cast<std::size_t>(end - short_text.begin())});
    }
    std::string long_text(text);
    std::replace(long_text.begin(), long_text.end(), ',', '.');
    return whole_text(long_text);
}

template <class Integer>
Integer to_whole(double value) {
    const double whole = std::nearbyint(value);
    constexpr double low = std::numeric_limits<Integer>::min();
    constexpr double high = std::numeric_limits<Integer>::max();
    if (!(whole >= low && whole <= high))
        raise(error::overflow);
    return static_cast<Integer>(whole);
}

} // namespace

double CDbl(std::string_view text, char separator) {
    const auto number = without_margins(text);
    if (const auto plain = plain_number(number, separator))
        return *plain;
    return separator == '.' ? whole_text(number) : with_point(number);
}

double Val(std::string_view text) {
    std::string dense;
    dense.reserve(text.size());
    std::copy_if(text.begin(), text.end(), std::back_inserter(dense),
                 [](char c) { return c != ' ' && c != '\t' && c != '\n'; });
    return checked(read_number(dense).value);
}

std::int16_t CInt(std::string_view text, char separator) {
    return to_int16(CDbl(text, separator));
}

std::int32_t CLng(std::string_view text, char separator) {
    return to_int32(CDbl(text, separator));
}

std::int16_t to_int16(double value) {
    return to_whole<std::int16_t>(value);
}

std::int32_t to_int32(double value) {
    return to_whole<std::int32_t>(value);
}

} // namespace velmora::runtime
