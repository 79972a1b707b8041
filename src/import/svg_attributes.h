// The values of SVG's attributes: lengths, transforms, styles.
#pragma once

#include "import/geometry.h"

#include <optional>
#include <string_view>
#include <vector>

namespace velmora::imports {

/// In pixels of 96 to the inch; none for a share of something else, or no number.
[[nodiscard]] std::optional<double> svg_length(std::string_view text);
/// It names a unit of length, or none, but no share.
[[nodiscard]] bool names_length_unit(std::string_view text);
/// A list of transforms; what follows an error is left out.
[[nodiscard]] Map svg_transform(std::string_view text);
/// All numbers of a list up to the first that is not one.
[[nodiscard]] std::vector<double> svg_numbers(std::string_view text);
/// Hidden by one of the properties, given by itself or in a style.
[[nodiscard]] bool is_hidden(std::string_view display, std::string_view visibility,
                             std::string_view style);

} // namespace velmora::imports
