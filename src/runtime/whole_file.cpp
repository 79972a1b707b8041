#include "runtime/whole_file.h"

#include "runtime/paths.h"

#include <filesystem>
#include <fstream>

namespace velmora::runtime {

namespace {

namespace fs = std::filesystem;

WholeFileFault fault_of(const fs::path& path, std::uintmax_t most_bytes) {
    std::error_code fault;
    const fs::file_status status = fs::status(path, fault);
    if (!fs::exists(status))
        return status.type() == fs::file_type::not_found ? WholeFileFault::missing
                                                         : WholeFileFault::unreadable;
    if (!fs::is_regular_file(status))
        return WholeFileFault::no_regular_file;
    const std::uintmax_t size = fs::file_size(path, fault);
    if (fault)
        return WholeFileFault::unreadable;
    return size > most_bytes ? WholeFileFault::too_large : WholeFileFault::none;
}

} // namespace

WholeFile read_whole_file(std::string_view path, std::uintmax_t most_bytes) {
    const fs::path native = native_path(path);
    WholeFile file{.bytes = {}, .fault = fault_of(native, most_bytes)};
    if (file.fault != WholeFileFault::none)
        return file;
    std::error_code none;
    std::ifstream stream(native, std::ios::binary);
    file.bytes.resize(static_cast<std::size_t>(fs::file_size(native, none)));
    stream.read(file.bytes.data(), static_cast<std::streamsize>(file.bytes.size()));
    if (!stream) {
        file.bytes.clear();
        file.fault = WholeFileFault::unreadable;
    }
    return file;
}

} // namespace velmora::runtime
