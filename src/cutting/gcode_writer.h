// The cut as a program for a cutter with four axes.
#pragma once

#include "cutting/machine.h"
#include "cutting/wire.h"

#include <cstddef>
#include <string>
#include <vector>

namespace velmora::cutting {

/// A word beyond the machine's travel: by its line in the text, from 1, and the place of its point.
struct BeyondTravel {
    std::size_t line = 0;
    std::size_t place = 0;
    char axis = 0;
    double value = 0; ///< millimetres, as written
    double limit = 0;
};

enum class GcodeFault : unsigned char {
    none,
    no_wire,      ///< the wire has a fault, or fewer than two points
    bad_machine,  ///< axes, decimals or unit that can't be written
    bad_speed,    ///< not positive
    all_one_place ///< to the written decimals nothing moves
};

struct Gcode {
    std::string text = {}; ///< empty with a fault; nothing is written to any file here
    GcodeFault fault = GcodeFault::none;
    std::size_t lines = 0;
    std::size_t moves = 0;                 ///< of the cut
    double minutes = 0;                    ///< of the cut, at the speed and the machine's own limit
    std::vector<BeyondTravel> beyond = {}; ///< the first hundred
    std::size_t beyond_count = 0;
};

/// The unit and G90 in front, each on a line of its own, as some controllers want them; then the
/// machine's lines and the towers' places in absolute coordinates, all four words in each line; a
/// step that moves nothing at the written decimals is left out. `speed` is that of the longer way
/// at the faces, in mm a minute; an axis that would pass the machine's fastest slows its line down.
/// The wire goes to the first point by G0, between the lines `before` and `start`: it is still cold
/// there.
[[nodiscard]] Gcode gcode_of(const Wire& wire, const Machine& machine, double speed);

} // namespace velmora::cutting
