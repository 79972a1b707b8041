#include "runtime/paths.h"
#include "runtime/error.h"
#include "runtime/file_stream.h"

#include <algorithm>
#include <utility>

namespace velmora::runtime {

std::filesystem::path native_path(std::string_view path) {
    std::u8string text(path.begin(), path.end());
    std::replace(text.begin(), text.end(), u8'\\', u8'/');
    return std::filesystem::path(text).make_preferred();
}

std::string path_text(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string join(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!name.empty() && is_separator(name.front()))
        name.remove_prefix(1);
    if (!path.empty() && !is_separator(path.back()))
        path += static_cast<char>(std::filesystem::path::preferred_separator);
    return path.append(name);
}

bool is_separator(char c) {
    return c == '/' || c == '\\';
}

std::string file_name(std::string_view path) {
    return std::string(path.substr(path.find_last_of("\\/") + 1));
}

bool file_exists(std::string_view path) {
    std::error_code fault;
    const auto status = std::filesystem::status(native_path(path), fault);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool remove_file(std::string_view path) {
    std::error_code fault;
    const auto target = native_path(path);
    if (std::filesystem::is_directory(target, fault))
        return false;
    std::filesystem::remove(target, fault);
    return !std::filesystem::exists(std::filesystem::symlink_status(target, fault));
}

// By the run-time's own files: not every standard library copies over a file that is there.
void copy_file(std::string_view from, std::string_view to) {
    const auto source = native_path(from);
    const auto target = native_path(to);
    const FileHandle in = open_present(source);
    std::error_code fault;
    if (std::filesystem::equivalent(source, target, fault))
        raise(error::permission_denied);
    FileHandle out = open_anew(target);
    ReadBuffer reading;
    WriteBuffer writing;
    while (reading.more(in.get())) {
        writing.add(out.get(), reading.waiting());
        reading.clear();
    }
    writing.flush(out.get());
    close_checked(std::move(out));
}

} // namespace velmora::runtime
