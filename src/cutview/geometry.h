// What the pictures of a cut are drawn with: places on the screen, places in the machine.
#pragma once

#include <algorithm>
#include <limits>

namespace velmora::cutview {

/// A place in a plane: of the screen in pixels, Y downwards, or of a drawing, Y upwards.
struct Spot {
    double x = 0;
    double y = 0;
    bool operator==(const Spot&) const = default;
};

/// A place in the machine: X along the block, Y up, Z along the wire from side A to side B.
struct Place {
    double x = 0;
    double y = 0;
    double z = 0;
    bool operator==(const Place&) const = default;
};

/// The smallest box round what was added.
struct Extent {
    Spot least{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
    Spot most{-std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};

    void add(Spot spot) {
        least = {std::min(least.x, spot.x), std::min(least.y, spot.y)};
        most = {std::max(most.x, spot.x), std::max(most.y, spot.y)};
    }
    [[nodiscard]] bool empty() const { return most.x < least.x; }
    [[nodiscard]] double width() const { return empty() ? 0 : most.x - least.x; }
    [[nodiscard]] double height() const { return empty() ? 0 : most.y - least.y; }
    [[nodiscard]] Spot middle() const {
        return empty() ? Spot{} : Spot{least.x + width() / 2, least.y + height() / 2};
    }
};

} // namespace velmora::cutview
