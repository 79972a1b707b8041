// The canvas's pixels as an image of the toolkit, 2000 by 2000.
#pragma once

#include "canvas/raster_surface.h"

#include <QImage>
#include <QRect>
#include <functional>
#include <string_view>

namespace velmora {

class ImageSurface : public RasterSurface {
  public:
    ImageSurface();

    /// Called with what changed, so that a window repaints no more than that; may be empty.
    std::function<void(const QRect& changed)> changed;

    /// A view of the living pixels, not a copy; it must not outlive the surface.
    [[nodiscard]] const QImage& image() const { return image_; }

    /// Raises 53 for a file that is not there, 481 for one that is no picture, 7 for a picture
    /// larger than a gigabyte.
    void set_picture(std::string_view file) override;

  protected:
    void show(const PixelBox& box) override;

  private:
    QImage image_;
};

} // namespace velmora
