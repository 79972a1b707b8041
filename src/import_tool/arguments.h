// What velmora-import is told on its command line.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::import_tool {

/// The forms that the program itself saves in.
enum class Form : unsigned char { sync, plain, scr };

struct Arguments {
    std::vector<std::string> files = {};
    std::string folder = {}; ///< empty: beside each source
    std::optional<double> chord_mm = {};
    std::optional<double> tolerance_mm = {};
    Form form = Form::sync;
    bool json = false;
    bool points = false; ///< the points too, in JSON
    bool check = false;  ///< write nothing
    bool all = false;    ///< every chain, not the first alone
    bool help = false;
};

inline constexpr std::string_view usage =
    "usage: velmora-import [--to DIR] [--chord MM] [--tolerance MM] [--as sync|plain|scr]\n"
    "                      [--all] [--check] [--json [--points]] FILE...\n";

/// None for what can't be understood; `fault` says what then.
[[nodiscard]] std::optional<Arguments> arguments_of(std::span<const std::string> words,
                                                    std::string& fault);

} // namespace velmora::import_tool
