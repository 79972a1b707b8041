// The boxes of the window ajuste that show the totals of a side while it is read and adjusted.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// References into the window's struct.
struct SideTotals {
    std::string& points;
    std::string& sync_points;
    std::string& points_of_result;
    std::string& sync_points_of_result;
};

/// Of side A for "A", of side B for any other text.
[[nodiscard]] SideTotals totals_of(std::string_view lado);

} // namespace velmora
