// The text of a scenario as lines with their numbers. Comments and blank lines are left out; words
// are split when a line is reached, so that what stands before a faulty line is carried out.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmora::driver {

struct ScriptLine {
    int number = 0;   ///< from 1, comments and blank lines counted
    std::string text; ///< without its line end
};

[[nodiscard]] std::vector<ScriptLine> parse_script(std::string_view text);

} // namespace velmora::driver
