// The marks of a ruler along the canvas, in the units of the shape.
#pragma once

#include <string>
#include <vector>

namespace velmora {

struct RulerScale {
    double step = 1;  ///< units from one number to the next: 1, 2 or 5 with zeros
    int parts = 5;    ///< short marks divide it
    int decimals = 0; ///< that its numbers need
};

/// The closest numbers that stand 60 pixels apart or more.
[[nodiscard]] RulerScale ruler_scale(double zoom);

struct RulerMark {
    double pixel = 0;  ///< from the ruler's begin
    std::string label; ///< empty for a short mark

    bool operator==(const RulerMark&) const = default;
};

/// The marks of a ruler of `length` pixels whose begin is `origin` pixels before the world's
/// origin. `direction` is 1 where the numbers grow along the ruler, -1 where they grow against it.
[[nodiscard]] std::vector<RulerMark> ruler_marks(double zoom, double origin, double length,
                                                 int direction);

} // namespace velmora
