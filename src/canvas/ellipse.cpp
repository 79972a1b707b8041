#include "canvas/ellipse.h"

#include <cmath>
#include <cstdlib>

namespace velmora {

EllipseOutline::EllipseOutline(const PixelBox& box)
    : left_(std::min(box.left, box.right)), top_(std::min(box.top, box.bottom)),
      width_(std::max(box.left, box.right) - left_), height_(std::max(box.top, box.bottom) - top_) {
    if (width_ == 0)
        height_ = 0;
}

std::int64_t EllipseOutline::half_width(std::int64_t distance) const {
    if (distance <= 1)
        return width_ - 1; // the middle reaches the box's sides, however flat it is
    const double share = static_cast<double>(distance) / static_cast<double>(height_);
    const double reach = static_cast<double>(width_) * std::sqrt(1 - share * share);
    auto whole = static_cast<std::int64_t>(reach);
    // Pixel centres lie an odd number of half pixels away where the width is even, else an even.
    const std::int64_t nearest = (width_ - 1) % 2;
    if ((whole - nearest) % 2 != 0)
        --whole;
    return std::max(whole, nearest);
}

EllipseOutline::Reach EllipseOutline::reach_of(std::int64_t y) const {
    const std::int64_t distance = std::abs(2 * (y - top_) - (height_ - 1));
    const std::int64_t outer = half_width(distance);
    const std::int64_t further = distance + 2;
    if (further > height_ - 1)
        return {outer, -1};
    // The run starts beside the next row's end, so that no gap opens where the line is flat.
    return {outer, std::min(half_width(further) + 2, outer)};
}

} // namespace velmora
