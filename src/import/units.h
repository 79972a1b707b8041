// Units of length by the numbers that drawings give them.
#pragma once

#include <string_view>

namespace velmora::imports {

struct Unit {
    std::string_view name;
    double mm = 0; ///< 0: none that is known
};

/// Of $INSUNITS.
[[nodiscard]] Unit drawing_unit(int number);

} // namespace velmora::imports
