// The extents of an outline, by selector: "0" the Forma, "A", "B", "A2", "B2" the adjustment's.
#pragma once

#include "document/forma.h"

#include <array>
#include <string_view>

namespace velmora {

/// Smallest X / Y, never above 100000; largest X / Y, never below 0: the start values are part of
/// the contract. An unknown selector gives the start value. Errors show a box of the routine's own
/// and give 0.
[[nodiscard]] double GetMinX(std::string_view selector);
[[nodiscard]] double GetMaxX(std::string_view selector);
[[nodiscard]] double GetMinY(std::string_view selector);
[[nodiscard]] double GetMaxY(std::string_view selector);

struct Extents {
    double min_x = 0;
    double max_x = 0;
    double min_y = 0;
    double max_y = 0;
};

enum class Bound { min_x, max_x, min_y, max_y };

/// All four, asked in this order: each that fails shows its own box.
[[nodiscard]] Extents extents_of(std::string_view selector, const std::array<Bound, 4>& order);

/// The array that a selector names, nullptr for any other text.
[[nodiscard]] const Array<Pto>* array_of(std::string_view selector);

} // namespace velmora
