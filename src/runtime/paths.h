// Paths as the logic cuts them: UTF-8 text, "/" and "\" both separate.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace velmora::runtime {

/// The path of the machine for a UTF-8 text, either separator.
[[nodiscard]] std::filesystem::path native_path(std::string_view path);
/// UTF-8 text of a path.
[[nodiscard]] std::string path_text(const std::filesystem::path& path);
/// The folder's path joined with a file's name by the machine's separator; a leading separator of
/// the name, "\velmora.chm", is taken as the joint.
[[nodiscard]] std::string join(std::string_view folder, std::string_view name);
[[nodiscard]] bool is_separator(char c);
/// What follows the last separator.
[[nodiscard]] std::string file_name(std::string_view path);
/// Something other than a folder is at the path. Never raises.
[[nodiscard]] bool file_exists(std::string_view path);
/// A plain delete; a missing file is no error. Never raises; false when the file is still there.
bool remove_file(std::string_view path);
/// Copies over what is there. Raises 53, 61, 70 (a file over itself too), 75, 76.
void copy_file(std::string_view from, std::string_view to);

} // namespace velmora::runtime
