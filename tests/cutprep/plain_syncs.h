// The sync points of a loaded side by a search from its start, to hold the prepared one against.
#pragma once

#include "cutprep/side.h"

#include <cstdint>
#include <string_view>

namespace velmora::test {

/// The lowest index above `desde` whose point is a sync point; -1 for none.
inline std::int32_t SiguienteSinc(std::string_view lado, std::int32_t desde) {
    const Array<Pto>& points = side_of(lado).Ptos;
    for (std::int32_t i = desde + 1; i <= points.upper(); ++i)
        if (points[i].Sinc == 1)
            return i;
    return -1;
}

/// The index of the sync point of ordinal `n`, from 0; 0 for none.
inline std::int32_t SincN(std::string_view lado, std::int32_t n) {
    const Array<Pto>& points = side_of(lado).Ptos;
    std::int32_t ordinal = -1;
    for (std::int32_t i = 0; i <= points.upper(); ++i)
        if (points[i].Sinc == 1 && ++ordinal == n)
            return i;
    return 0;
}

} // namespace velmora::test
