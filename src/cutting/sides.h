// The two outlines of one cut as plain data, apart from the session: what the checks, the wire and
// the writers of this room look at.
#pragma once

#include "document/forma.h"
#include "import/geometry.h"
#include "import/imported.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace velmora::cutting {

using imports::Box;
using imports::Point;

/// One outline in millimetres, in the order of the cut.
struct SidePath {
    std::vector<Point> points = {};
    std::vector<std::size_t> sync = {}; ///< places of the sync points in `points`, ascending
};

/// "A" and "B" of an entry, or both.
enum class Which : unsigned char { A, B, both };

struct Sides {
    SidePath A, B;
    bool closed =
        true; ///< the way leads from the last point back to the first, which isn't repeated
    /// Points of equal place are cut together: sides after the adjustment, and result files. False
    /// before it: there the n-th sync points belong together, and nothing else is known.
    bool paired = true;
};

/// Both have so many points, two at least, and are cut point by point.
[[nodiscard]] bool are_paired(const Sides& sides);

/// An outline of the workbench: `PtosA`, `PtosA2` and so on. Without dimensions it is empty.
[[nodiscard]] SidePath side_path(const Array<Pto>& points);

enum class SideFault : unsigned char {
    none,
    no_outline,  ///< no line with two numbers in the place of the outline
    bad_number,  ///< neither a point nor the head of the sync points, at `line`
    too_large,   ///< a coordinate beyond 1e15, at `line`
    no_two_sides ///< a program that moves one end of the wire alone
};

struct SideFile {
    SidePath path = {};
    SideFault fault = SideFault::none;
    std::size_t line = 0;      ///< of the file, from 1; 0 where it speaks of the whole file
    std::size_t unmatched = 0; ///< sync records that lie on no point
};

/// The text of a result file or of any file of sync records: two lines of head, the points, the
/// closing one, "Puntos Sincronismo" and the sync points. The closing point is dropped. With a
/// fault `path` holds what was read before it.
[[nodiscard]] SideFile read_side_file(std::string_view bytes);

struct SidesFile {
    Sides sides = {};
    SideFault fault = SideFault::none;
    std::size_t line = 0;
};

/// The two roads of a program for four axes that `import_bytes` has read. Every point counts as
/// paired; sync points there are none.
[[nodiscard]] SidesFile sides_of_program(const imports::Imported& program);

} // namespace velmora::cutting
