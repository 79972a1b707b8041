#include "canvas/raster.h"

#include "canvas/segment_course.h"

#include <algorithm>
#include <limits>

namespace velmora {

namespace {

constexpr Pixel kOpaque = 0xFF000000;
/// Outlines up to this size are kept as stamps: the glyphs of the points come by ten thousands.
constexpr std::int32_t kStampSize = 32;

struct CopyPen {
    Pixel pixel;
    void operator()(Pixel& at) const { at = pixel; }
};

struct MaskPenNot {
    Pixel pixel;
    void operator()(Pixel& at) const { at = (pixel & ~at) | kOpaque; }
};

struct Invert {
    void operator()(Pixel& at) const { at = ~at | kOpaque; }
};

template <class Draw>
void with_pen(const Ink& ink, Draw draw) {
    switch (ink.mode) {
    case DrawMode::mask_pen_not:
        return draw(MaskPenNot{ink.pixel});
    case DrawMode::invert:
        return draw(Invert{});
    case DrawMode::copy_pen:
        return draw(CopyPen{ink.pixel});
    }
}

/// The widest 32-bit box that is empty, so that any point widens it to itself.
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

} // namespace

Raster::Raster(std::span<Pixel> pixels, std::int32_t width)
    : pixels_(pixels), width_(width),
      height_(static_cast<std::int32_t>(pixels.size() / static_cast<std::size_t>(width))),
      changed_from_{kMost, kMost}, changed_to_{kLeast, kLeast} {}

void Raster::fill(Pixel pixel) {
    std::ranges::fill(pixels_, pixel);
    touch_all();
}

void Raster::copy(std::span<const Pixel> pixels) {
    std::ranges::copy(pixels.first(pixels_.size()), pixels_.begin());
    touch_all();
}

bool Raster::holds(PixelPoint point) const {
    // A negative coordinate becomes a large one without its sign.
    return static_cast<std::uint32_t>(point.x) < static_cast<std::uint32_t>(width_) &&
           static_cast<std::uint32_t>(point.y) < static_cast<std::uint32_t>(height_);
}

template <class Put>
void Raster::walk(PixelPoint from, PixelPoint to, std::int64_t extra_pixels, Put put) {
    const SegmentCourse course(from, to);
    const std::int64_t pixels = course.length() + extra_pixels;
    SegmentCourse::Range range{0, pixels};
    if (!holds(from) || !holds(to))
        range = course.inside(pixels, width_, height_);
    if (range.first >= range.end)
        return;
    const std::ptrdiff_t x_step = course.steep() ? course.step_across() : course.step_along();
    const std::ptrdiff_t y_step = course.steep() ? course.step_along() : course.step_across();
    const std::ptrdiff_t row = y_step * width_;
    const std::ptrdiff_t along = course.steep() ? row : x_step;
    const std::ptrdiff_t across = course.steep() ? x_step : row;
    const SegmentCourse::Place start = course.place(range.first);
    std::ptrdiff_t at =
        std::ptrdiff_t{from.y} * width_ + from.x + range.first * along + start.across * across;
    const std::int64_t gain = course.gain();
    const std::int64_t full = course.full();
    std::int64_t error = start.error;
    Pixel* const memory = pixels_.data();
    for (std::int64_t left = range.end - range.first; left > 0; --left) {
        put(memory[at]);
        at += along;
        error += gain;
        if (error >= full) {
            error -= full;
            at += across;
        }
    }
}

void Raster::segment(PixelPoint from, PixelPoint to, Ink ink) {
    with_pen(ink, [&](auto put) { walk(from, to, 0, put); });
    touch(from, to);
}

void Raster::whole_segment(PixelPoint from, PixelPoint to, Ink ink) {
    with_pen(ink, [&](auto put) { walk(from, to, 1, put); });
    touch(from, to);
}

void Raster::polyline(std::span<const PixelPoint> points, Ink ink) {
    with_pen(ink, [&](auto put) {
        for (std::size_t i = 1; i < points.size(); ++i) {
            walk(points[i - 1], points[i], 0, put);
            touch(points[i - 1], points[i]);
        }
    });
}

template <class Put>
void Raster::fill_box(const PixelBox& box, Put put) {
    const std::int32_t left = std::max(box.left, 0);
    const std::int32_t right = std::min(box.right, width_ - 1);
    const std::int32_t bottom = std::min(box.bottom, height_ - 1);
    for (std::int32_t y = std::max(box.top, 0); y <= bottom && left <= right; ++y) {
        Pixel* const row = pixels_.data() + std::ptrdiff_t{y} * width_;
        std::for_each(row + left, row + right + 1, put);
    }
}

void Raster::box(PixelPoint corner, PixelPoint opposite, Ink ink) {
    const PixelBox ordered{std::min(corner.x, opposite.x), std::min(corner.y, opposite.y),
                           std::max(corner.x, opposite.x), std::max(corner.y, opposite.y)};
    with_pen(ink, [&](auto put) { fill_box(ordered, put); });
    touch(corner, opposite);
}

const Raster::Stamp& Raster::stamp_of(std::int32_t width, std::int32_t height) {
    for (const Stamp& stamp : stamps_)
        if (stamp.width == width && stamp.height == height)
            return stamp;
    Stamp& stamp = stamps_[next_stamp_];
    next_stamp_ = (next_stamp_ + 1) % stamps_.size();
    stamp = {width, height, {}};
    EllipseOutline({0, 0, width, height})
        .runs(0, height, [&](std::int64_t y, std::int64_t first, std::int64_t last) {
            for (std::int64_t x = first; x <= last; ++x)
                stamp.pixels.push_back(y * width_ + x);
        });
    return stamp;
}

void Raster::ellipse(const PixelBox& box, Pixel pixel) {
    if (std::max(box.left, box.right) <= 0 || std::min(box.left, box.right) >= width_)
        return;
    const PixelPoint corner{box.left, box.top};
    const bool small = holds(corner) && box.right > box.left && box.bottom > box.top &&
                       box.right - box.left <= kStampSize && box.bottom - box.top <= kStampSize;
    if (small && box.right <= width_ && box.bottom <= height_) {
        Pixel* const at = pixels_.data() + std::ptrdiff_t{box.top} * width_ + box.left;
        for (const std::ptrdiff_t distance :
             stamp_of(box.right - box.left, box.bottom - box.top).pixels)
            at[distance] = pixel;
    } else {
        const auto put = [&](std::int64_t y, std::int64_t first, std::int64_t last) {
            const std::int64_t left = std::max<std::int64_t>(first, 0);
            const std::int64_t right = std::min<std::int64_t>(last, width_ - 1);
            if (left <= right)
                std::fill_n(pixels_.data() + y * width_ + left, right - left + 1, pixel);
        };
        EllipseOutline(box).runs(0, height_, put);
    }
    touch(corner, {box.right, box.bottom});
}

void Raster::touch(PixelPoint a, PixelPoint b) {
    changed_from_.x = std::min({changed_from_.x, a.x, b.x});
    changed_from_.y = std::min({changed_from_.y, a.y, b.y});
    changed_to_.x = std::max({changed_to_.x, a.x, b.x});
    changed_to_.y = std::max({changed_to_.y, a.y, b.y});
}

void Raster::touch_all() {
    touch({0, 0}, {width_ - 1, height_ - 1});
}

PixelBox Raster::take_changed() {
    const PixelBox changed{std::max(changed_from_.x, 0), std::max(changed_from_.y, 0),
                           std::min(changed_to_.x, width_ - 1) + 1,
                           std::min(changed_to_.y, height_ - 1) + 1};
    changed_from_ = {kMost, kMost};
    changed_to_ = {kLeast, kLeast};
    return changed.empty() ? PixelBox{} : changed;
}

} // namespace velmora
