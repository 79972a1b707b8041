// A segment as a row of pixels along its longer axis, and the part of that row inside a window.
#pragma once

#include "canvas/surface.h"

#include <cstdint>

namespace velmora {

/// Pixel i lies i steps along the longer axis and `across` steps along the other: the nearest pixel
/// to the true line, of two equally near ones that with the smaller coordinate. All arithmetic is
/// exact, for ends anywhere in the 32-bit range.
class SegmentCourse {
  public:
    SegmentCourse(PixelPoint from, PixelPoint to);

    /// A pixel of the row; `error` is what the walk has gathered towards the next step across, from
    /// 0 to below `full()`.
    struct Place {
        std::int64_t across;
        std::int64_t error;
    };
    [[nodiscard]] Place place(std::int64_t i) const;

    /// Pixels `first` to before `end`; none when they are equal.
    struct Range {
        std::int64_t first;
        std::int64_t end;
    };
    /// Which of the first `pixels` pixels lie inside 0..width-1, 0..height-1.
    [[nodiscard]] Range inside(std::int64_t pixels, std::int32_t width, std::int32_t height) const;

    [[nodiscard]] bool steep() const { return steep_; }
    /// Steps from the first to the last pixel.
    [[nodiscard]] std::int64_t length() const { return length_; }
    [[nodiscard]] std::int64_t gain() const { return 2 * rise_; } ///< error gained in each step
    [[nodiscard]] std::int64_t full() const { return 2 * length_; }
    [[nodiscard]] int step_along() const { return along_.step; }
    [[nodiscard]] int step_across() const { return across_.step; }

  private:
    struct Axis {
        std::int64_t start;
        int step; ///< 1 or -1
    };

    [[nodiscard]] static Range steps_within(Axis axis, std::int64_t size);
    [[nodiscard]] std::int64_t first_reaching(std::int64_t across, Range range) const;

    bool steep_;
    Axis along_;
    Axis across_;
    std::int64_t length_; ///< pixels along
    std::int64_t rise_;   ///< pixels across, at most `length_`
    std::int64_t bias_;
};

} // namespace velmora
