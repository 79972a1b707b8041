#include "adapters/qt/image_surface.h"

#include "runtime/error.h"
#include "runtime/paths.h"

#include <QImageReader>
#include <QSaveFile>
#include <QString>

namespace velmora {

namespace {

constexpr int kPixels = 2000;
constexpr qint64 kMegabytes = 1024;

/// The part of a picture that the canvas can show, as 0xAARRGGBB.
QImage read_picture(std::string_view file) {
    if (!runtime::file_exists(file))
        raise(error::file_not_found);
    QImageReader::setAllocationLimit(kMegabytes);
    QImageReader reader(QString::fromStdString(runtime::path_text(runtime::native_path(file))));
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (qint64{size.width()} * size.height() * 4 > kMegabytes << 20)
        raise(error::out_of_memory);
    const QImage picture = reader.read();
    if (picture.isNull())
        raise(error::invalid_picture);
    return picture.copy(picture.rect() & QRect(0, 0, kPixels, kPixels))
        .convertToFormat(QImage::Format_ARGB32);
}

} // namespace

ImageSurface::ImageSurface()
    : RasterSurface(kPixels, kPixels),
      image_(reinterpret_cast<const uchar*>(pixels().data()), pixel_width(), pixel_height(),
             qsizetype{pixel_width()} * qsizetype{sizeof(Pixel)}, QImage::Format_RGB32) {}

void ImageSurface::set_picture(std::string_view file) {
    if (file.empty()) {
        put_picture({}, 0);
        return;
    }
    const QImage picture = read_picture(file);
    const auto* rows = reinterpret_cast<const Pixel*>(picture.constBits());
    const qsizetype row_width = picture.bytesPerLine() / qsizetype{sizeof(Pixel)};
    put_picture({rows, static_cast<std::size_t>(row_width * picture.height())},
                static_cast<std::int32_t>(row_width));
}

// A file that could not be written whole leaves the former one as it was.
void ImageSurface::save_part(std::string_view file, PixelPoint corner, PixelPoint size) {
    const QRect seen = QRect(corner.x, corner.y, size.x, size.y) & image_.rect();
    if (seen.isEmpty()) // of which a copy would be all
        raise(error::invalid_call);
    const QImage part = image_.copy(seen);
    QSaveFile out(QString::fromStdString(runtime::path_text(runtime::native_path(file))));
    if (!out.open(QIODevice::WriteOnly) || !part.save(&out, "PNG") || !out.commit())
        raise(error::path_access);
}

void ImageSurface::show(const PixelBox& box) {
    if (changed)
        changed(QRect(box.left, box.top, box.right - box.left, box.bottom - box.top));
}

} // namespace velmora
