#include "canvas/raster_surface.h"

#include "canvas/colours.h"
#include "runtime/error.h"

#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

constexpr double kTwipsPerPixel = 15;
constexpr std::uint32_t kSystemBackground = 0x80000000;
/// Floats beyond this are cut back to it along their segment before they become whole pixels.
constexpr double kFar = 1 << 30;

Pixel opaque(std::uint32_t colour) {
    return 0xFF000000 | screen_rgb(colour);
}

struct Position {
    double x;
    double y;
};

/// Moves an end that lies beyond kFar on one axis back to it, along the segment.
void cut_back(Position& end, const Position& other, double Position::*axis) {
    if (std::abs(end.*axis) <= kFar)
        return;
    const double limit = std::copysign(kFar, end.*axis);
    const double share = (limit - end.*axis) / (other.*axis - end.*axis);
    end = {end.x + share * (other.x - end.x), end.y + share * (other.y - end.y)};
    end.*axis = limit;
}

/// False for a segment that lies wholly beyond kFar.
bool cut_back(Position& from, Position& to) {
    for (const auto axis : {&Position::x, &Position::y}) {
        if (std::min(from.*axis, to.*axis) > kFar || std::max(from.*axis, to.*axis) < -kFar)
            return false;
        cut_back(from, to, axis);
        cut_back(to, from, axis);
    }
    return true;
}

PixelPoint rounded(const Position& place) {
    return {static_cast<std::int32_t>(std::nearbyint(std::clamp(place.x, -kFar, kFar))),
            static_cast<std::int32_t>(std::nearbyint(std::clamp(place.y, -kFar, kFar)))};
}

/// A pixel with transparency over an opaque one.
Pixel blended(Pixel over, Pixel under) {
    const std::uint32_t alpha = over >> 24;
    Pixel result = 0xFF;
    for (const int shift : {16, 8, 0}) {
        const std::uint32_t a = over >> shift & 0xFF;
        const std::uint32_t b = under >> shift & 0xFF;
        result = result << 8 | (a * alpha + b * (255 - alpha) + 127) / 255;
    }
    return result;
}

} // namespace

RasterSurface::RasterSurface(std::int32_t width, std::int32_t height)
    : pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
              opaque(kSystemBackground)),
      raster_(pixels_, width), back_(opaque(kSystemBackground)) {}

double RasterSurface::Width() const {
    return raster_.width() * kTwipsPerPixel;
}

double RasterSurface::Height() const {
    return raster_.height() * kTwipsPerPixel;
}

void RasterSurface::Cls() {
    if (under_.empty())
        raster_.fill(back_);
    else
        raster_.copy(under_);
}

void RasterSurface::set_back_color(std::uint32_t colour) {
    const Pixel next = opaque(colour);
    if (next == back_)
        return;
    const std::vector<Pixel> former = background();
    back_ = next;
    change_background(former);
}

void RasterSurface::put_picture(std::span<const Pixel> rows, std::int32_t row_width) {
    const std::vector<Pixel> former = background();
    picture_.clear();
    picture_width_ = std::min(row_width, raster_.width());
    for (std::int32_t y = 0; y < raster_.height() && !rows.empty(); ++y) {
        picture_.insert(picture_.end(), rows.begin(), rows.begin() + picture_width_);
        rows = rows.subspan(static_cast<std::size_t>(row_width));
    }
    change_background(former);
}

std::vector<Pixel> RasterSurface::background() const {
    std::vector<Pixel> result(pixels_.size(), back_);
    const auto row_width = static_cast<std::size_t>(picture_width_);
    const auto width = static_cast<std::size_t>(raster_.width());
    for (std::size_t at = 0; at < picture_.size(); ++at) {
        Pixel& under = result[at / row_width * width + at % row_width];
        under = blended(picture_[at], under);
    }
    return result;
}

void RasterSurface::change_background(std::span<const Pixel> former) {
    std::vector<Pixel> next = background();
    for (std::size_t at = 0; at < pixels_.size(); ++at)
        if (pixels_[at] == former[at])
            pixels_[at] = next[at];
    if (picture_.empty())
        next.clear();
    under_ = std::move(next);
    show({0, 0, raster_.width(), raster_.height()});
}

void RasterSurface::set_pen(std::uint32_t colour) {
    pen_ = colour;
}

void RasterSurface::set_draw_mode(DrawMode mode) {
    mode_ = mode;
}

Ink RasterSurface::ink(std::uint32_t colour) const {
    return {opaque(colour), mode_};
}

void RasterSurface::MoveToEx(std::int32_t x, std::int32_t y) {
    position_ = {x, y};
}

void RasterSurface::LineTo(std::int32_t x, std::int32_t y) {
    raster_.segment(position_, {x, y}, {opaque(pen_)});
    position_ = {x, y};
}

void RasterSurface::Polyline(std::span<const PixelPoint> points) {
    raster_.polyline(points, {opaque(pen_)});
}

void RasterSurface::Arc(std::int32_t left, std::int32_t top, std::int32_t right,
                        std::int32_t bottom) {
    raster_.ellipse({left, top, right, bottom}, opaque(pen_));
}

void RasterSurface::Line(float x1, float y1, float x2, float y2) {
    Position from{x1, y1};
    Position to{x2, y2};
    if (cut_back(from, to))
        raster_.whole_segment(rounded(from), rounded(to), ink(pen_));
}

void RasterSurface::FillBox(float x1, float y1, float x2, float y2, std::uint32_t colour) {
    raster_.box(rounded({x1, y1}), rounded({x2, y2}), ink(colour));
}

void RasterSurface::present() {
    const PixelBox changed = raster_.take_changed();
    if (!changed.empty())
        show(changed);
}

std::uint32_t RasterSurface::pixel(std::int32_t x, std::int32_t y) const {
    if (x < 0 || y < 0 || x >= raster_.width() || y >= raster_.height())
        raise(error::subscript);
    return pixels_[static_cast<std::size_t>(y) * static_cast<std::size_t>(raster_.width()) +
                   static_cast<std::size_t>(x)] &
           0xFFFFFF;
}

} // namespace velmora
