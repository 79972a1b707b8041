// A sync DAT made by hand, as the lines of a script name its points. It stands on nothing of the
// program's own, which is what the file is to test.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace velmora::driver {

/// The bytes of the file: head, the points, the first of them once more, the section of sync
/// points. A point is "X,Y", a sync point "X,Y,S"; the numbers stand in the file as they are
/// written. A ScriptFault without a point, for another word, for a text beyond the 21 columns of
/// its field.
[[nodiscard]] std::string hand_made_dat(std::string_view description,
                                        std::span<const std::string> points);

} // namespace velmora::driver
