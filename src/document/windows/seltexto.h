// The window seltexto as plain data: what it shows and what the user typed. The logic reads and
// writes it; the window shows it when it gets time and writes back what was typed before it calls a
// handler.
#pragma once

#include "platform/dialogs.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

/// Text to shape. What is held between the preview and the load outlives the window.
struct SeltextoWindow {
    struct PathPoint {
        std::int32_t X = 0; ///< pixels of Pictext
        std::int32_t Y = 0;
        bool operator==(const PathPoint&) const = default;
    };
    /// A segment in Pictext, both ends included; one from a place to itself is a dot.
    struct Segment {
        PathPoint from, to;
        bool operator==(const Segment&) const = default;
    };

    std::string char_; ///< the box `char`
    FontChoice Pictext_Font{.name = "", .size = 72};
    std::vector<Segment> Pictext;
    std::uint64_t Pictext_draws = 0; ///< grows with every change of Pictext

    std::array<PathPoint, 1001> points{};
    std::array<std::uint8_t, 1001> types{};
    std::int16_t last_index = 0; ///< of the last valid entry; -2 for a text that is too long
};

namespace state {
extern SeltextoWindow& seltexto;
}

} // namespace velmora
