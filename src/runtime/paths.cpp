#include "runtime/paths.h"
#include "runtime/file_faults.h"

#include <algorithm>

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

void copy_file(std::string_view from, std::string_view to) {
    std::error_code fault;
    const auto source = native_path(from);
    const auto target = native_path(to);
    if (std::filesystem::is_directory(source, fault) ||
        std::filesystem::is_directory(target, fault))
        raise(error::path_access);
    if (!std::filesystem::exists(source, fault))
        raise(error::file_not_found);
    std::filesystem::copy_file(source, target, std::filesystem::copy_options::overwrite_existing,
                               fault);
    if (fault)
        raise(fault_number(fault, FileNeed::made));
}

} // namespace velmora::runtime
