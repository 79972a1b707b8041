#include "import/svg_attributes.h"

#include "import/number_text.h"
#include "import/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

namespace velmora::imports {

namespace {

struct Unit {
    std::string_view name;
    double pixels;
};

constexpr std::array<Unit, 9> units = {{{"", 1},
                                        {"px", 1},
                                        {"pt", 96.0 / 72},
                                        {"pc", 16},
                                        {"mm", 96 / 25.4},
                                        {"cm", 96 / 2.54},
                                        {"in", 96},
                                        {"em", 16},
                                        {"ex", 8}}};

double radians(double degrees) {
    return degrees * (std::numbers::pi / 180);
}

Map moved(double X, double Y) {
    return {1, 0, 0, 1, X, Y};
}

Map turned_by(double angle) {
    return {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0};
}

std::optional<Map> transform_of(std::string_view name, const std::vector<double>& n) {
    const auto second = [&](double missing) {
        return n.size() > 1 ? n[1] : missing;
    };
    if (name == "matrix" && n.size() == 6)
        return Map{n[0], n[1], n[2], n[3], n[4], n[5]};
    if (n.empty())
        return {};
    if (name == "translate")
        return moved(n[0], second(0));
    if (name == "scale")
        return Map{n[0], 0, 0, second(n[0]), 0, 0};
    if (name == "rotate" && n.size() == 3)
        return moved(n[1], n[2]) * turned_by(radians(n[0])) * moved(-n[1], -n[2]);
    if (name == "rotate")
        return turned_by(radians(n[0]));
    if (name == "skewX")
        return Map{1, 0, std::tan(radians(n[0])), 1, 0, 0};
    if (name == "skewY")
        return Map{1, std::tan(radians(n[0])), 0, 1, 0, 0};
    return {};
}

/// A style is a list of names and values; blanks may be anywhere.
bool style_says(std::string_view style, std::string_view declaration) {
    std::string packed;
    std::ranges::copy_if(style, std::back_inserter(packed), [](char c) { return !is_blank(c); });
    return packed.find(declaration) != std::string::npos;
}

} // namespace

std::optional<double> svg_length(std::string_view text) {
    std::string_view rest = trimmed(text);
    const auto value = take_number(rest);
    const auto* unit = std::ranges::find(units, trimmed(rest), &Unit::name);
    if (!value || unit == units.end())
        return {};
    return *value * unit->pixels;
}

bool names_length_unit(std::string_view text) {
    return svg_length(text).has_value();
}

std::vector<double> svg_numbers(std::string_view text) {
    std::vector<double> numbers;
    while (true) {
        while (!text.empty() && (is_blank(text.front()) || text.front() == ','))
            text.remove_prefix(1);
        const auto value = take_number(text);
        if (!value)
            return numbers;
        numbers.push_back(*value);
    }
}

Map svg_transform(std::string_view text) {
    Map map;
    while (true) {
        const std::size_t open = text.find('(');
        const std::size_t close = text.find(')');
        if (open == std::string_view::npos || close == std::string_view::npos || close < open)
            return map;
        std::string_view name = text.substr(0, open);
        while (!name.empty() && !is_letter(name.front()))
            name.remove_prefix(1);
        const auto next =
            transform_of(trimmed(name), svg_numbers(text.substr(open + 1, close - open - 1)));
        if (!next)
            return map;
        map = map * *next;
        text.remove_prefix(close + 1);
    }
}

bool is_hidden(std::string_view display, std::string_view visibility, std::string_view style) {
    return display == "none" || visibility == "hidden" || style_says(style, "display:none") ||
           style_says(style, "visibility:hidden");
}

} // namespace velmora::imports
