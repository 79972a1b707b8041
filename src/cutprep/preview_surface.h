// The drawing operations of the small pictures in the adjustment window, in the pictures' own scale
// (twips, 15 to the pixel). Colours are red + 256 green + 65536 blue; from 0x80000000 on a system
// colour of the desktop.
#pragma once

#include <cstdint>

namespace velmora {

/// One picture. What is drawn shows when the windows get time.
class PreviewSurface {
  public:
    virtual ~PreviewSurface() = default;
    /// Size of the drawing area.
    [[nodiscard]] virtual double ScaleWidth() const = 0;
    [[nodiscard]] virtual double ScaleHeight() const = 0;

    /// To the background colour.
    virtual void Cls() = 0;
    /// A segment, end included. Places may lie far outside the picture.
    virtual void Line(double x1, double y1, double x2, double y2, std::uint32_t colour) = 0;
    virtual void Circle(double x, double y, double radius, std::uint32_t colour) = 0;
};

/// The pictures, by the names of their controls in `ajuste`.
enum class PreviewPicture { Pic_A, Pic_B, New_Pic_A, New_Pic_B };

/// Where they are while the window is open; Platform::previews is null without it.
class Previews {
  public:
    virtual ~Previews() = default;
    [[nodiscard]] virtual PreviewSurface& picture(PreviewPicture which) = 0;
};

} // namespace velmora
