// What the program is told on its command line.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace velmora {

struct CommandLine {
    std::filesystem::path file = {}; ///< to open, absolute; empty: none is named
    std::string fault = {};          ///< why the line can't be understood; empty: it can
};

/// The answer to --help and --version, which ask for no window. `words` as the system gives them,
/// without the program's name.
[[nodiscard]] std::optional<std::string> answer_of(const std::vector<std::string>& words);

/// `words` without the program's name and without the toolkit's options.
[[nodiscard]] CommandLine command_line_of(const std::vector<std::string>& words);

} // namespace velmora
