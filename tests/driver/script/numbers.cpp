#include "script/numbers.h"

#include "script/fault.h"
#include "script/words.h"

#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace velmora::driver {

namespace {

template <class Number>
std::string shortest(Number value) {
    std::array<char, 32> text{};
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value);
    return {text.data(), result.ptr};
}

template <class Number, class... Form>
Number whole_word(std::string_view word, const char* kind, Form... form) {
    Number value{};
    const char* end = word.data() + word.size();
    const auto result = std::from_chars(word.data(), end, value, form...);
    if (word.empty() || result.ec != std::errc{} || result.ptr != end)
        fault(word_text(word) + " is no " + kind);
    return value;
}

} // namespace

std::string number_text(double value) {
    return shortest(value);
}

std::string number_text(std::int32_t value) {
    return shortest(value);
}

double real_number(std::string_view word) {
    const auto value = whole_word<double>(word, "number");
    if (!std::isfinite(value))
        fault(word_text(word) + " is no number");
    return value;
}

std::int32_t whole_number(std::string_view word) {
    return whole_word<std::int32_t>(word, "whole number");
}

std::int32_t count_number(std::string_view word) {
    const std::int32_t value = whole_number(word);
    if (value < 0)
        fault(word_text(word) + " is below 0");
    return value;
}

std::int32_t hex_number(std::string_view word) {
    return static_cast<std::int32_t>(whole_word<std::uint32_t>(word, "hexadecimal number", 16));
}

} // namespace velmora::driver
