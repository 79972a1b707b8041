// Rows of points as the world publishes outlines of airfoils and other shapes: the order of the
// rows is found from what they hold.
#pragma once

#include "import/imported.h"

#include <string_view>

namespace velmora::imports {

/// Fills title, chains, asks and report. The outline of an airfoil has its chord from 0 to 1 where
/// the file says it in percent, starts at the trailing edge and runs counter-clockwise, over the
/// upper side first.
void read_points_table(std::string_view text, const Choices& choices, Imported& imported);

} // namespace velmora::imports
