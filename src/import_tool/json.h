// What was imported as one line of JSON.
#pragma once

#include "import/imported.h"

#include <string>
#include <string_view>
#include <vector>

namespace velmora::import_tool {

struct Outcome {
    std::string file;
    bool done = false;
    std::string fault; ///< why not
    std::vector<std::string> written = {};
    imports::Imported imported = {};
};

[[nodiscard]] std::string json_of(const Outcome& outcome, bool with_points);
/// For a person: the file, what became of it, and each line of the report.
[[nodiscard]] std::string words_of(const Outcome& outcome);

} // namespace velmora::import_tool
