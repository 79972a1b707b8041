#include "canvas/segment_course.h"

#include <algorithm>
#include <cstdlib>

namespace velmora {

namespace {

struct Quotient {
    std::int64_t whole;
    std::int64_t rest;
};

/// a * b / c for a <= c, all up to 2^32: the product does not fit 64 bits, so it goes in halves.
Quotient multiply_divide(std::int64_t a, std::int64_t b, std::int64_t c) {
    const std::int64_t upper = (a >> 16) * b;
    const std::int64_t lower = ((upper % c) << 16) + (a & 0xFFFF) * b;
    return {((upper / c) << 16) + lower / c, lower % c};
}

} // namespace

SegmentCourse::SegmentCourse(PixelPoint from, PixelPoint to) {
    const std::int64_t dx = std::int64_t{to.x} - from.x;
    const std::int64_t dy = std::int64_t{to.y} - from.y;
    steep_ = std::abs(dy) > std::abs(dx);
    const Axis x{from.x, dx < 0 ? -1 : 1};
    const Axis y{from.y, dy < 0 ? -1 : 1};
    along_ = steep_ ? y : x;
    across_ = steep_ ? x : y;
    length_ = std::abs(steep_ ? dy : dx);
    rise_ = std::abs(steep_ ? dx : dy);
    // Half a step; a hair less on the way up, so that a tie goes to the smaller coordinate.
    bias_ = across_.step > 0 ? length_ - 1 : length_;
}

SegmentCourse::Place SegmentCourse::place(std::int64_t i) const {
    if (i == 0)
        return {0, bias_};
    const Quotient run = multiply_divide(i, rise_, length_);
    const std::int64_t error = 2 * run.rest + bias_;
    return error < full() ? Place{run.whole, error} : Place{run.whole + 1, error - full()};
}

SegmentCourse::Range SegmentCourse::steps_within(Axis axis, std::int64_t size) {
    if (axis.step > 0)
        return {-axis.start, size - axis.start};
    return {axis.start - size + 1, axis.start + 1};
}

std::int64_t SegmentCourse::first_reaching(std::int64_t across, Range range) const {
    while (range.first < range.end) {
        const std::int64_t middle = range.first + (range.end - range.first) / 2;
        if (place(middle).across < across)
            range.first = middle + 1;
        else
            range.end = middle;
    }
    return range.first;
}

SegmentCourse::Range SegmentCourse::inside(std::int64_t pixels, std::int32_t width,
                                           std::int32_t height) const {
    const Range along = steps_within(along_, steep_ ? height : width);
    const Range across = steps_within(across_, steep_ ? width : height);
    Range range{std::max<std::int64_t>(along.first, 0), std::min(along.end, pixels)};
    if (range.first >= range.end || across.end <= 0 || across.first > rise_)
        return {0, 0};
    range.first = first_reaching(across.first, range);
    range.end = first_reaching(across.end, range);
    return range;
}

} // namespace velmora
