#include "script/places.h"

#include "runtime/text.h"
#include "script/words.h"

#include <array>
#include <filesystem>
#include <utility>

namespace velmora::driver {

namespace {

constexpr std::string_view kWork = "$WORK";
constexpr std::string_view kProgram = "$PROGRAM";

/// Whether a folder's path that ends here is the whole of it: "/tmp/work" is not in "/tmp/work2".
bool ends_a_name(std::string_view rest) {
    if (rest.empty())
        return true;
    const auto c = static_cast<unsigned char>(rest.front());
    const bool letter = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
    return !letter && c != '_' && c != '-' && c < 128;
}

std::string replaced(std::string_view text, std::string_view folder, std::string_view name) {
    std::string result;
    while (true) {
        const auto found = text.find(folder);
        if (found == std::string_view::npos)
            return result.append(text);
        const std::string_view rest = text.substr(found + folder.size());
        result.append(text.substr(0, found));
        result.append(ends_a_name(rest) ? name : folder);
        text = rest;
    }
}

bool begins_with_place(std::string_view path, std::string_view name) {
    return path.starts_with(name) && (path.size() == name.size() || path[name.size()] == '/');
}

} // namespace

Places::Places(std::string work, std::string program)
    : work_(std::move(work)), program_(std::move(program)) {}

std::string Places::expanded(std::string_view text) const {
    if (begins_with_place(text, kWork))
        return work_ + std::string(text.substr(kWork.size()));
    if (begins_with_place(text, kProgram))
        return program_ + std::string(text.substr(kProgram.size()));
    return std::string(text);
}

std::string Places::resolve(std::string_view path) const {
    std::string place = expanded(path);
    if (std::filesystem::path(place).has_root_directory())
        return place;
    return work_ + '/' + place;
}

std::string Places::named(std::string_view text) const {
    using Pair = std::pair<const std::string*, std::string_view>;
    std::array<Pair, 2> folders{Pair{&work_, kWork}, Pair{&program_, kProgram}};
    // One may lie in the other: the longer path is looked for first.
    if (folders[0].first->size() < folders[1].first->size())
        std::swap(folders[0], folders[1]);
    std::string result(text);
    for (const auto& [folder, name] : folders) {
        result = replaced(result, *folder, name);
        result = replaced(result, runtime::UCase(*folder), name);
    }
    return result;
}

std::string Places::word(std::string_view text) const {
    return word_text(named(text));
}

} // namespace velmora::driver
