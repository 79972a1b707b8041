#include "runtime/file_stream.h"
#include "runtime/file_faults.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace velmora::runtime {
namespace {

constexpr std::size_t chunk = 256 * 1024;

std::error_code last_fault() {
    return {errno, std::generic_category()};
}

bool interrupted() {
    return errno == EINTR;
}

std::FILE* open_once(const std::filesystem::path& path, const char* mode) {
    errno = 0;
#ifdef _WIN32
    const std::wstring wide_mode(mode, mode + std::char_traits<char>::length(mode));
    return _wfopen(path.c_str(), wide_mode.c_str());
#else
    return std::fopen(path.c_str(), mode);
#endif
}

FileHandle system_open(const std::filesystem::path& path, const char* mode) {
    std::FILE* file = open_once(path, mode);
    while (file == nullptr && interrupted())
        file = open_once(path, mode);
    return FileHandle(file);
}

/// The buffers here are the only ones: the library's would copy every byte once more.
FileHandle unbuffered(FileHandle file) {
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    return file;
}

// Some systems open a folder for reading and fail at the first read alone.
void refuse_folder(const std::filesystem::path& path) {
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
        raise(error::path_access);
}

/// A pipe blocks until somebody writes, a device may give bytes for ever.
void refuse_endless(const std::filesystem::path& path) {
    std::error_code ignored;
    const auto status = std::filesystem::status(path, ignored);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        raise(error::path_access);
}

void refuse_pipe(const std::filesystem::path& path) {
    std::error_code ignored;
    if (std::filesystem::is_fifo(path, ignored))
        raise(error::path_access);
}

/// The longest name of a file on the systems that are reached, in their units.
constexpr std::size_t longest_name = 255;

// Windows says of each of these that the path is not there; other systems distinguish them.
int opening_fault(const std::filesystem::path& path, FileNeed need) {
    const std::error_code fault = last_fault();
    if (fault != std::errc::no_such_file_or_directory)
        return fault_number(fault, need);
    if (path.filename().native().size() > longest_name)
        return error::bad_file_number;
    std::error_code ignored;
    const auto above = std::filesystem::status(path.parent_path(), ignored);
    const bool below_a_file =
        std::filesystem::exists(above) && !std::filesystem::is_directory(above);
    return below_a_file ? error::path_not_found : fault_number(fault, need);
}

FileHandle open_or_raise(const std::filesystem::path& path, const char* mode, FileNeed need) {
    refuse_folder(path);
    FileHandle file = system_open(path, mode);
    if (!file)
        raise(opening_fault(path, need));
    return unbuffered(std::move(file));
}

bool is_present(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

} // namespace

FileHandle open_present(const std::filesystem::path& path) {
    refuse_endless(path);
    return open_or_raise(path, "rb", FileNeed::present);
}

FileHandle open_anew(const std::filesystem::path& path) {
    return open_or_raise(path, "wb", FileNeed::made);
}

FileHandle open_to_update(const std::filesystem::path& path) {
    if (!is_present(path))
        return open_or_raise(path, "w+b", FileNeed::made);
    refuse_folder(path);
    refuse_pipe(path);
    if (FileHandle file = system_open(path, "r+b"))
        return unbuffered(std::move(file));
    return open_present(path);
}

namespace {

// A signal may break off either of them before or within its work; what is done counts.
std::size_t read_some(std::FILE* file, char* place, std::size_t size) {
    std::size_t got = 0;
    do {
        errno = 0;
        std::clearerr(file);
        got = std::fread(place, 1, size, file);
    } while (got == 0 && std::ferror(file) != 0 && interrupted());
    return got;
}

bool write_all(std::FILE* file, std::string_view bytes) {
    while (!bytes.empty()) {
        errno = 0;
        const std::size_t done = std::fwrite(bytes.data(), 1, bytes.size(), file);
        bytes.remove_prefix(done);
        if (!bytes.empty() && !interrupted())
            return false;
        std::clearerr(file);
    }
    return true;
}

} // namespace

void ReadBuffer::make_room() {
    if (start_ > 0) {
        std::copy(bytes_.data() + start_, bytes_.data() + end_, bytes_.data());
        end_ -= start_;
        start_ = 0;
    }
    if (bytes_.size() - end_ < chunk / 2)
        bytes_.resize(std::max(chunk, bytes_.size() * 2));
}

bool ReadBuffer::more(std::FILE* file) {
    make_room();
    const std::size_t got = read_some(file, bytes_.data() + end_, bytes_.size() - end_);
    if (got == 0 && std::ferror(file) != 0)
        raise(fault_number(last_fault(), FileNeed::present));
    end_ += got;
    return got > 0;
}

void WriteBuffer::add(std::FILE* file, std::string_view bytes) {
    if (bytes_.size() + bytes.size() > chunk)
        flush(file);
    bytes_ += bytes;
}

void WriteBuffer::flush(std::FILE* file) {
    if (bytes_.empty())
        return;
    const bool whole = write_all(file, bytes_);
    bytes_.clear();
    if (!whole)
        raise(fault_number(last_fault(), FileNeed::made));
}

void seek(std::FILE* file, std::uint64_t position) {
#ifdef _WIN32
    const int failed = _fseeki64(file, static_cast<long long>(position), SEEK_SET);
#else
    const int failed = std::fseek(file, static_cast<long>(position), SEEK_SET);
#endif
    if (failed != 0)
        raise(error::device_io);
}

void close_checked(FileHandle file) {
    errno = 0;
    // Broken off by a signal it is closed all the same, and nothing waits here to be written.
    if (std::fclose(file.release()) != 0 && !interrupted())
        raise(fault_number(last_fault(), FileNeed::made));
}

} // namespace velmora::runtime
