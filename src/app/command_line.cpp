#include "app/command_line.h"

#include "document/state/program.h"
#include "runtime/paths.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr const char* kUsage = "usage: velmora [FILE]\n"
                               "       velmora --help | --version\n"
                               "\n"
                               "FILE is a DAT, SCR, CUT or DXF file to open. velmora-import reads "
                               "what other programs publish.\n";

} // namespace

std::optional<std::string> answer_of(const std::vector<std::string>& words) {
    const auto options = std::ranges::find(words, "--");
    for (auto word = words.begin(); word != options; ++word) {
        if (*word == "--help" || *word == "-h")
            return kUsage;
        if (*word == "--version" || *word == "-v")
            return "Velmora " + state::program.Ver + "." + std::to_string(state::program.SubVer) +
                   "\n";
    }
    return std::nullopt;
}

CommandLine command_line_of(const std::vector<std::string>& words) {
    CommandLine line;
    bool only_files = false;
    for (const std::string& word : words) {
        if (!only_files && word == "--")
            only_files = true;
        else if (!only_files && word.starts_with("-") && word != "-")
            line.fault = "unknown option " + word;
        else if (!line.file.empty())
            line.fault = "one file at a time, not " + word + " too";
        else
            line.file = std::filesystem::absolute(runtime::native_path(word));
        if (!line.fault.empty())
            return line;
    }
    return line;
}

} // namespace velmora
