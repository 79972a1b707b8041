// velmora-import: published outlines to files for the cutter, without windows.
#include "import_tool/run.h"

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

bool errors_go_to_a_terminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

constexpr int usage_fault = 2;

int run(const std::vector<std::string>& given) {
    using namespace velmora::import_tool;
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

} // namespace

#ifdef _WIN32
/// The names of files come in the system's own letters, not in those of a code page.
int wmain(int count, wchar_t** words) {
    std::vector<std::string> given;
    for (int i = 1; i < count; ++i) {
        const std::u8string word = std::filesystem::path(words[i]).u8string();
        given.emplace_back(word.begin(), word.end());
    }
    return run(given);
}
#else
int main(int count, char** words) {
    return run({words + 1, words + count});
}
#endif
