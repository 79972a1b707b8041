// What a reader leaves as the totals of the outline and in their boxes.
#pragma once

#include <cstdint>

namespace velmora {

/// How many of the totals a reader touches; each touches those above it too and leaves those below
/// it alone.
enum class Totals {
    last_point, ///< UltimoPto
    points,     ///< TotalPtos with its box
    sync_box,   ///< the box of the sync points, to 0
    all,        ///< TotalSinc, to 0
};

/// The only routine that publishes what a reader counted. `count` is what the reader calls its
/// count: the points, one less, or one more.
void publish_totals(Totals touched, std::int32_t count);

} // namespace velmora
