#include "runtime/files.h"
namespace velmora::runtime {
class FileTable::OpenFile {};
FileTable::FileTable() = default;
FileTable::~FileTable() = default;
void FileTable::open_input(int, std::string_view) {}
void FileTable::open_output(int, std::string_view) {}
void FileTable::open_bytes(int, std::string_view) {}
void FileTable::open_random(int, std::string_view, int) {}
void FileTable::close(int) {}
void FileTable::abandon(int) noexcept {}
bool FileTable::is_open(int) const {
    return false;
}
bool FileTable::eof(int) {
    return true;
}
std::string_view FileTable::line_input(int) {
    return {};
}
std::string_view FileTable::read_record(int) {
    return {};
}
void FileTable::write(int, std::string_view) {}
std::string_view FileTable::read_bytes(int) {
    return {};
}
std::uint64_t FileTable::length(int) {
    return 0;
}
} // namespace velmora::runtime
