// A file of other programs, read at once.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmora::runtime {

enum class WholeFileFault : unsigned char { none, missing, no_regular_file, too_large, unreadable };

struct WholeFile {
    std::string bytes;
    WholeFileFault fault = WholeFileFault::none;
};

/// Raises nothing but for want of memory. A folder, a pipe or a device is not opened: it may never
/// end.
[[nodiscard]] WholeFile read_whole_file(std::string_view path, std::uintmax_t most_bytes);

} // namespace velmora::runtime
