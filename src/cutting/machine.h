// A cutter with four axes, as a small readable file tells it: NAME.machine in the folder
// `machines`, lines "key = value", remarks behind "#" at the start of a line.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::cutting {

/// What the number behind F means for a line.
enum class Feed : unsigned char {
    inverse, ///< G93: lines a minute
    first,   ///< G94, the way of the first two axes; of the others where those rest
    both,    ///< G94, the root of the sum of the squares of all four
    longer   ///< G94, the longer of the two ways
};

struct Travel {
    double low = 0; ///< millimetres
    double high = 0;
};

/// The axes in the order: X of side A, Y of A, X of side B, Y of B.
inline constexpr std::size_t machine_axes = 4;

struct Machine {
    std::string name = {};
    std::string axes = "XYUV";
    double unit_mm = 1; ///< 1, or 25.4 for inches
    int decimals = 3;   ///< 1 to 6
    Feed feed = Feed::inverse;
    double fastest = 0; ///< of one axis, mm a minute; 0: no limit
    bool lines_end_in_crlf = false;
    std::array<std::optional<Travel>, machine_axes> travel = {};
    std::vector<std::string> before = {}; ///< cold: before the way to the first point
    std::vector<std::string> start = {};  ///< at the first point: heat, wait
    std::vector<std::string> after = {};  ///< at the end
};

enum class MachineFault : unsigned char {
    no_pair, ///< a line that is no "key = value"
    unknown_key,
    bad_axes,     ///< not four different letters of XYZUVWABC
    bad_unit,     ///< neither mm nor inch
    bad_number,   ///< no number, or one that can't be
    bad_feed,     ///< none of inverse, first, both, longer
    bad_line_end, ///< neither lf nor crlf
    bad_travel,   ///< not "LETTER LOW HIGH" with a letter of the axes and LOW below HIGH
    no_axes,      ///< the whole file names no axes
    no_name
};

struct MachineProblem {
    MachineFault fault;
    std::string file;     ///< as it was given
    std::size_t line = 0; ///< from 1; 0 where it speaks of the whole file
    std::string text;     ///< what stands there
};

struct MachineFile {
    Machine machine = {};
    std::vector<MachineProblem> problems = {}; ///< usable where it is empty
};

/// Four different letters of XYZUVWABC.
[[nodiscard]] bool are_axes(std::string_view letters);

/// `file` is for the problems alone, `text` is UTF-8. Any line end and blanks are taken; of a key
/// that stands several times the last one counts, but all lines and the travel of each axis.
[[nodiscard]] MachineFile read_machine(std::string_view text, std::string_view file);

/// The files of the folders, by their names; of a name that several folders have the first one's,
/// so that the user's own go before the program's. A file that can't be read is a problem of its
/// own without a text. A folder that isn't there has none.
struct MachineEntry {
    std::string path = {};
    MachineFile file = {};
    bool readable = true; ///< else `file` is empty
};
[[nodiscard]] std::vector<MachineEntry> machines_in(const std::vector<std::string>& folders);

} // namespace velmora::cutting
