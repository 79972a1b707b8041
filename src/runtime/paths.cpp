#include "runtime/paths.h"
namespace velmora::runtime {
std::filesystem::path native_path(std::string_view path) {
    return std::string(path);
}
std::string path_text(const std::filesystem::path& path) {
    return path.string();
}
std::string join(std::string_view folder, std::string_view name) {
    return std::string(folder) + "/" + std::string(name);
}
bool is_separator(char c) {
    return c == '/' || c == '\\';
}
bool file_exists(std::string_view) {
    return false;
}
bool remove_file(std::string_view) {
    return false;
}
void copy_file(std::string_view, std::string_view) {}
} // namespace velmora::runtime
