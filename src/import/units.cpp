#include "import/units.h"

#include <array>
#include <cstddef>

namespace velmora::imports {

namespace {

constexpr std::array<Unit, 16> units = {{{"none", 0},
                                         {"inch", 25.4},
                                         {"foot", 304.8},
                                         {"mile", 1'609'344},
                                         {"millimetre", 1},
                                         {"centimetre", 10},
                                         {"metre", 1000},
                                         {"kilometre", 1'000'000},
                                         {"microinch", 25.4e-6},
                                         {"mil", 25.4e-3},
                                         {"yard", 914.4},
                                         {"angstrom", 1e-7},
                                         {"nanometre", 1e-6},
                                         {"micrometre", 1e-3},
                                         {"decimetre", 100},
                                         {"decametre", 10'000}}};

} // namespace

Unit drawing_unit(int number) {
    const bool known = number >= 0 && static_cast<std::size_t>(number) < units.size();
    return known ? units[static_cast<std::size_t>(number)] : units[0];
}

} // namespace velmora::imports
