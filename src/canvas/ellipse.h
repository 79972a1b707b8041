// The outline of an ellipse in a box of pixels, row by row.
#pragma once

#include <algorithm>
#include <cstdint>

namespace velmora {

/// A box of pixels; the column `right` and the row `bottom` are the first ones outside.
struct PixelBox {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool operator==(const PixelBox&) const = default;
    [[nodiscard]] bool empty() const { return left >= right || top >= bottom; }
};

/// A closed line one pixel wide, the same after a flip in either axis. Lengths are counted in half
/// pixels from the centre, which lies between pixels where a side is even.
class EllipseOutline {
  public:
    explicit EllipseOutline(const PixelBox& box);

    /// Calls visit(y, first x, last x), both included, for each run of pixels in the rows from
    /// `first_row` to before `end_row`.
    template <class Visit>
    void runs(std::int32_t first_row, std::int32_t end_row, Visit visit) const {
        const std::int64_t first = std::max<std::int64_t>(first_row, top_);
        const std::int64_t end = std::min<std::int64_t>(end_row, top_ + height_);
        for (std::int64_t y = first; y < end; ++y) {
            const Reach reach = reach_of(y);
            if (reach.inner < 0) {
                visit(y, column(-reach.outer), column(reach.outer));
                continue;
            }
            visit(y, column(-reach.outer), column(-reach.inner));
            visit(y, column(reach.inner), column(reach.outer));
        }
    }

  private:
    /// How far a row's pixels reach from the centre; inner is negative for a row without a gap.
    struct Reach {
        std::int64_t outer;
        std::int64_t inner;
    };

    [[nodiscard]] Reach reach_of(std::int64_t y) const;
    [[nodiscard]] std::int64_t half_width(std::int64_t distance) const;
    [[nodiscard]] std::int64_t column(std::int64_t from_centre) const {
        return (2 * left_ + width_ - 1 + from_centre) / 2;
    }

    std::int64_t left_;
    std::int64_t top_;
    std::int64_t width_;
    std::int64_t height_;
};

} // namespace velmora
