// What the readers share: the limit of a coordinate, the scale of a load, the numbered files.
#pragma once

#include "runtime/file_table.h"

#include <cstdint>
#include <string>

namespace velmora {

/// A file as it was on the disk when the program read or wrote it last.
struct SeenFile {
    std::string path;
    std::uintmax_t size = 0;
    std::int64_t written = 0; ///< ticks of the file system's clock

    bool operator==(const SeenFile&) const = default;
};

struct LoadingState {
    double EscalaCarga = 1;
    double MaxCoordCarga = 0;
    double LimiteCoord = 25000;
    runtime::FileTable files;
    SeenFile seen; ///< the outline's
    std::uint64_t seen_times = 0;
    bool reading = false;
    bool cancel_asked = false; ///< by Esc, while `reading`
};

namespace state {
extern LoadingState& loading;
}

} // namespace velmora
