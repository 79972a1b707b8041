#include "import/number_text.h"

#include "import/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

namespace velmora::imports {

namespace {

constexpr std::size_t longest_number = 64;

bool starts_number(std::string_view text) {
    if (text.starts_with('.'))
        text.remove_prefix(1);
    return !text.empty() && is_digit(text.front());
}

/// A number without a sign at the start of the text, and how many characters it takes; 0: none.
std::size_t read_plain(std::string_view text, double& value) {
    if (!starts_number(text))
        return 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (fault == std::errc::invalid_argument)
        return 0;
    // Too large and too small are reported alike; the first is refused, the second is 0.
    if (fault == std::errc::result_out_of_range)
        value = std::string_view(text.data(), end).find_first_of("-") == std::string_view::npos
                    ? largest_number * 2
                    : 0;
    return static_cast<std::size_t>(end - text.data());
}

std::optional<double> rewritten(std::string_view text, char from, char to) {
    std::array<char, longest_number> copy;
    if (text.size() > copy.size())
        return {};
    const auto end = std::ranges::replace_copy(text, copy.begin(), from, to).out;
    return number_of({copy.begin(), end});
}

} // namespace

std::optional<double> take_number(std::string_view& text) {
    std::string_view rest = text;
    const bool negative = rest.starts_with('-');
    if (negative || rest.starts_with('+'))
        rest.remove_prefix(1);
    double value = 0;
    const std::size_t used = read_plain(rest, value);
    if (used == 0 || std::abs(value) > largest_number)
        return {};
    text = rest.substr(used);
    return negative ? -value : value;
}

std::optional<double> number_of(std::string_view text) {
    std::string_view rest = text;
    const auto value = take_number(rest);
    if (!value || rest.empty())
        return rest.empty() ? value : std::nullopt;
    for (const char exponent : {'D', 'd'}) {
        if (rest.starts_with(exponent))
            return rewritten(text, exponent, 'E');
    }
    return {};
}

std::optional<double> number_with_comma(std::string_view text) {
    if (text.find('.') != std::string_view::npos)
        return {};
    return rewritten(text, ',', '.');
}

} // namespace velmora::imports
