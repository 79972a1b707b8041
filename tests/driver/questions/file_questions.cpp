#include "questions/questions.h"
#include "runtime/paths.h"
#include "script/words.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace velmora::driver {

namespace {

std::string bytes_of(const std::string& path) {
    std::ifstream file(runtime::native_path(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> names_in(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(runtime::path_text(entry.path().filename()));
    std::ranges::sort(names);
    return names;
}

} // namespace

void show_file(Transcript& transcript, const Places& places, const std::string& path) {
    const std::string place = places.resolve(path);
    if (!runtime::file_exists(place)) {
        transcript.line("file", word_text(path), "none");
        return;
    }
    const std::string bytes = bytes_of(place);
    transcript.line("file", word_text(path), std::to_string(bytes.size()));
    std::string_view rest = bytes;
    while (!rest.empty()) {
        const auto length = std::min(rest.find('\n'), rest.size() - 1) + 1;
        transcript.line(quoted_bytes(rest.substr(0, length)));
        rest.remove_prefix(length);
    }
}

void show_files(Transcript& transcript, const Places& places, const std::string& folder) {
    const auto path = runtime::native_path(places.resolve(folder));
    if (!std::filesystem::is_directory(path)) {
        transcript.line("files", word_text(folder), "none");
        return;
    }
    transcript.line("files", word_text(folder));
    for (const std::string& name : names_in(path))
        transcript.line(word_text(name));
}

void show_settings(Transcript& transcript, const Places& places, const ScriptedSettings& settings) {
    for (const auto& [key, value] : settings.all())
        transcript.line(word_text(key.first), word_text(key.second), places.word(value));
}

} // namespace velmora::driver
