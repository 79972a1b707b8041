// The drawing operations of the canvas that the painters need, in pixels. Colours are
// red + 256 green + 65536 blue; from 0x80000000 on a system colour of the desktop.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace velmora {

struct PixelPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;

    bool operator==(const PixelPoint&) const = default;
};

/// How a pen meets what is on the surface. Only `Line` and `FillBox` heed the mode; the other
/// operations copy.
enum class DrawMode {
    mask_pen_not = 5, ///< pen and not what is there
    invert = 6,       ///< not what is there
    copy_pen = 13,
};

class Surface {
  public:
    virtual ~Surface() = default;
    /// Size in twips, 15 to the pixel.
    [[nodiscard]] virtual double Width() const = 0;
    [[nodiscard]] virtual double Height() const = 0;

    /// To the background colour, and the background picture at its corner.
    virtual void Cls() = 0;
    virtual void set_back_color(std::uint32_t colour) = 0;
    virtual void set_pen(std::uint32_t colour) = 0;
    virtual void set_draw_mode(DrawMode mode) = 0;

    virtual void MoveToEx(std::int32_t x, std::int32_t y) = 0;
    /// From the current position; the end pixel is left out. The position moves there.
    virtual void LineTo(std::int32_t x, std::int32_t y) = 0;
    /// Connected segments; the last end pixel is left out. Fewer than two points draw nothing.
    virtual void Polyline(std::span<const PixelPoint> points) = 0;
    /// A whole ellipse in the box, right and bottom edge left out.
    virtual void Arc(std::int32_t left, std::int32_t top, std::int32_t right,
                     std::int32_t bottom) = 0;
    /// A segment in float pixels with the present mode, end pixel included, in the pen's colour.
    virtual void Line(float x1, float y1, float x2, float y2) = 0;
    /// A filled box in float pixels with the present mode, both corners included.
    virtual void FillBox(float x1, float y1, float x2, float y2, std::uint32_t colour) = 0;

    /// A picture file for the background; the empty name takes it away. It shows at once, under
    /// what is drawn. Raises 53, 481 for a file that is not a picture, 7 for one too large for
    /// memory.
    virtual void set_picture(std::string_view file) = 0;
    /// Writes a part of what is drawn as a PNG file, over one that is there; what lies beyond the
    /// surface is left out. Raises 75 where it can't be written, 5 for a part without pixels.
    virtual void save_part(std::string_view file, PixelPoint corner, PixelPoint size) = 0;
    /// Shows what was drawn when the windows get time.
    virtual void present() = 0;
};

} // namespace velmora
