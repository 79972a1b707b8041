// Lines, boxes and ellipses on rows of 32-bit pixels: plain memory, no toolkit. Coordinates may lie
// anywhere in the 32-bit range; what falls on the raster are exactly the pixels that the same
// figure would have on an endless one, and what lies outside costs next to nothing.
#pragma once

#include "canvas/ellipse.h"
#include "canvas/surface.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace velmora {

/// A pixel as it is in memory: 0xFF, red, green, blue from the top byte down.
using Pixel = std::uint32_t;

/// What a figure is drawn with.
struct Ink {
    Pixel pixel = 0xFF000000;
    DrawMode mode = DrawMode::copy_pen;
};

class Raster {
  public:
    /// Rows of `width` pixels without a gap between them. The memory stays the caller's.
    Raster(std::span<Pixel> pixels, std::int32_t width);

    [[nodiscard]] std::int32_t width() const { return width_; }
    [[nodiscard]] std::int32_t height() const { return height_; }

    void fill(Pixel pixel);
    void copy(std::span<const Pixel> pixels);

    /// A segment without its end pixel; from a point to itself draws nothing. A pixel is the
    /// nearest one to the true line, of two equally near ones that with the smaller coordinate, so
    /// a segment and its reverse cover each other.
    void segment(PixelPoint from, PixelPoint to, Ink ink);
    /// A segment with its end pixel.
    void whole_segment(PixelPoint from, PixelPoint to, Ink ink);
    /// The segments from each point to the next, the last end pixel left out.
    void polyline(std::span<const PixelPoint> points, Ink ink);
    /// A filled box, both corners included.
    void box(PixelPoint corner, PixelPoint opposite, Ink ink);
    /// The outline of the ellipse in a box, right and bottom edge left out.
    void ellipse(const PixelBox& box, Pixel pixel);

    /// What was drawn on since the last call, clipped to the raster; empty when nothing was.
    [[nodiscard]] PixelBox take_changed();

  private:
    /// An outline of small size as distances from the pixel at its box's corner.
    struct Stamp {
        std::int32_t width = 0;
        std::int32_t height = 0;
        std::vector<std::ptrdiff_t> pixels;
    };

    [[nodiscard]] bool holds(PixelPoint point) const;
    template <class Put>
    void walk(PixelPoint from, PixelPoint to, std::int64_t extra_pixels, Put put);
    template <class Put>
    void fill_box(const PixelBox& box, Put put);
    [[nodiscard]] const Stamp& stamp_of(std::int32_t width, std::int32_t height);
    void touch(PixelPoint a, PixelPoint b);
    void touch_all();

    std::span<Pixel> pixels_;
    std::int32_t width_;
    std::int32_t height_;
    std::array<Stamp, 4> stamps_;
    std::size_t next_stamp_ = 0;
    PixelPoint changed_from_; ///< both corners of what was drawn on, included
    PixelPoint changed_to_;
};

} // namespace velmora
