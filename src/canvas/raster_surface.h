// The canvas's drawing operations on pixels in memory. What is left to a toolkit is reading a
// picture file and showing the rows.
#pragma once

#include "canvas/raster.h"
#include "canvas/surface.h"

#include <cstdint>
#include <span>
#include <vector>

namespace velmora {

class RasterSurface : public Surface {
  public:
    /// Size in pixels; at first all in the system's background colour.
    RasterSurface(std::int32_t width, std::int32_t height);

    [[nodiscard]] double Width() const override;
    [[nodiscard]] double Height() const override;
    void Cls() override;
    /// Shows at once, under what is drawn.
    void set_back_color(std::uint32_t colour) override;
    void set_pen(std::uint32_t colour) override;
    void set_draw_mode(DrawMode mode) override;
    void MoveToEx(std::int32_t x, std::int32_t y) override;
    void LineTo(std::int32_t x, std::int32_t y) override;
    void Polyline(std::span<const PixelPoint> points) override;
    void Arc(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) override;
    void Line(float x1, float y1, float x2, float y2) override;
    void FillBox(float x1, float y1, float x2, float y2, std::uint32_t colour) override;
    void present() override;

    /// 0xRRGGBB. Raises 9 outside the surface.
    [[nodiscard]] std::uint32_t pixel(std::int32_t x, std::int32_t y) const;

  protected:
    RasterSurface(const RasterSurface&) = delete;
    RasterSurface& operator=(const RasterSurface&) = delete;

    /// What changed since the last time; never empty.
    virtual void show(const PixelBox& changed) = 0;
    /// A background picture as rows of 0xAARRGGBB, at the surface's corner; what lies beyond the
    /// surface is left out, what is transparent shows the background colour. No rows take it away.
    /// Shows at once, under what is drawn.
    void put_picture(std::span<const Pixel> rows, std::int32_t row_width);
    [[nodiscard]] std::span<const Pixel> pixels() const { return pixels_; }
    [[nodiscard]] std::int32_t pixel_width() const { return raster_.width(); }
    [[nodiscard]] std::int32_t pixel_height() const { return raster_.height(); }

  private:
    [[nodiscard]] Ink ink(std::uint32_t colour) const;
    [[nodiscard]] std::vector<Pixel> background() const;
    void change_background(std::span<const Pixel> former);

    std::vector<Pixel> pixels_;
    Raster raster_;
    std::vector<Pixel> picture_; ///< clipped to the surface
    std::int32_t picture_width_ = 0;
    std::vector<Pixel> under_; ///< colour and picture together; empty without a picture
    Pixel back_;
    std::uint32_t pen_ = 0;
    DrawMode mode_ = DrawMode::copy_pen;
    PixelPoint position_;
};

} // namespace velmora
