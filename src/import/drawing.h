// A drawing as a reader leaves it: flattened pieces with their layers, not yet joined.
#pragma once

#include "import/pieces.h"

#include <string>
#include <vector>

namespace velmora::imports {

struct Drawing {
    Pieces pieces;
    std::vector<std::string> layers; ///< names, by the number in a piece
    std::vector<Point> dots;         ///< single points, in the order of the file
    double unit_mm = 0;              ///< 0: the file does not say
};

} // namespace velmora::imports
