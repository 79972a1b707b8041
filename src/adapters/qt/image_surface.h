// The canvas's pixels as an image of the toolkit, 2000 by 2000.
#pragma once

#include "canvas/raster_surface.h"
#include "toolkit/shown_image.h"

#include <QImage>
#include <string_view>

namespace velmora {

class ImageSurface : public RasterSurface, public ShownImage {
  public:
    ImageSurface();

    /// A view of the living pixels, not a copy; it must not outlive the surface.
    [[nodiscard]] const QImage& image() const override { return image_; }

    /// Raises 53 for a file that is not there, 481 for one that is not a picture, 7 for a picture
    /// larger than a gigabyte.
    void set_picture(std::string_view file) override;
    void save_part(std::string_view file, PixelPoint corner, PixelPoint size) override;

  protected:
    void show(const PixelBox& box) override;

  private:
    QImage image_;
};

} // namespace velmora
