// velmora-import: published outlines to files for the cutter, without windows.
#include "import_tool/run.h"

#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include <unistd.h>

namespace {

bool errors_go_to_a_terminal() {
    return isatty(STDERR_FILENO) != 0;
}

constexpr int usage_fault = 2;

} // namespace

int main(int count, char** words) {
    using namespace velmora::import_tool;
    const std::vector<std::string> given(words + 1, words + count);
    std::string fault;
    const auto arguments = arguments_of(given, fault);
    if (!arguments) {
        std::cerr << "velmora-import: " << fault << "\n" << usage;
        return usage_fault;
    }
    if (arguments->help) {
        std::cout << usage;
        return 0;
    }
    const bool shows_progress = errors_go_to_a_terminal();
    const auto progress = [&](std::size_t behind) {
        if (!shows_progress)
            return;
        if (behind == arguments->files.size())
            std::cerr << "\r\x1b[K" << std::flush;
        else
            std::cerr << "\r" << behind + 1 << " of " << arguments->files.size() << std::flush;
    };
    return import_files(
        *arguments, [](std::string_view text) { std::cout << text << std::flush; }, progress);
}
