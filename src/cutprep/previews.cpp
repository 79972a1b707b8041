#include "cutprep/previews.h"

#include "cutprep/preview_surface.h"
#include "document/extents.h"
#include "document/feedback.h"
#include "document/forma.h"
#include "document/state/settings.h"
#include "platform/platform.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace velmora {

namespace {

constexpr double kMargin = 100;
constexpr double kPointRadius = 30;
constexpr double kSyncRadius = 80;
constexpr std::uint32_t kBlack = 0;
constexpr std::uint32_t kFirstChord = 255;
constexpr std::uint32_t kSecondChord = 0xFF0000;

struct Drawing {
    std::string_view selector;
    PreviewPicture picture;
    std::string_view error_prefix;
};

/// What drawing needs of an outline and the picture that it goes into.
class Frame {
  public:
    Frame(std::string_view selector, const PreviewSurface& picture) {
        const double max_x = GetMaxX(selector);
        const double max_y = GetMaxY(selector);
        const double min_y = GetMinY(selector);
        normaliser_ = max_x <= 1 && max_y <= 1 ? 1 : std::max(max_x, max_y);
        factor_ = factor(max_x, max_y, picture);
        y0_ = runtime::checked(picture.ScaleHeight() - min_y - kMargin);
        x0_ = runtime::checked(GetMinX(selector) * factor_ + kMargin);
    }

    [[nodiscard]] double x(const Pto& point) const {
        return runtime::checked(normalised(point.X) * factor_ + x0_);
    }
    [[nodiscard]] double y(const Pto& point) const {
        return runtime::checked(y0_ - normalised(point.Y) * factor_);
    }

  private:
    /// The extents are the largest coordinates, not widths: the outline is taken to begin at 0.
    static double factor(double max_x, double max_y, const PreviewSurface& picture) {
        const double width = picture.ScaleWidth() - 2 * kMargin;
        const double height = picture.ScaleHeight() - 2 * kMargin;
        if (max_x <= width && max_y <= height)
            return std::min(runtime::divide(width, max_x), runtime::divide(height, max_y));
        return std::max(runtime::divide(max_x, width), runtime::divide(max_y, height));
    }
    [[nodiscard]] double normalised(double value) const {
        return value == 0 ? 0 : value / normaliser_;
    }

    double normaliser_ = 1;
    double factor_ = 1;
    double x0_ = 0;
    double y0_ = 0;
};

/// The direction of the cut can be seen from the first two chords.
std::uint32_t colour_of_chord(std::int32_t from) {
    if (from == 0)
        return kFirstChord;
    return from == 1 ? kSecondChord : kBlack;
}

void draw_chords(PreviewSurface& picture, const Array<Pto>& points, const Frame& frame) {
    const auto line = [&](const Pto& a, const Pto& b, std::uint32_t colour) {
        picture.Line(frame.x(a), frame.y(a), frame.x(b), frame.y(b), colour);
    };
    for (std::int32_t i = 0; i < points.upper(); ++i)
        line(points[i], points[i + 1], colour_of_chord(i));
    line(points[points.upper()], points[0], kBlack);
}

void draw_points(PreviewSurface& picture, const Array<Pto>& points, const Frame& frame) {
    for (const Pto& point : points.all()) {
        const double x = frame.x(point);
        const double y = frame.y(point);
        picture.Circle(x, y, kPointRadius, state::settings.cl_punto);
        if (point.Sinc == 1)
            picture.Circle(x, y, kSyncRadius, state::settings.cl_puntosinc);
    }
}

/// Asked for anew after each turn of the windows: the pictures are gone when their window is.
PreviewSurface& picture_of(PreviewPicture which) {
    if (platform().previews == nullptr)
        raise(error::object_not_set);
    return platform().previews->picture(which);
}

void draw_outline(const Drawing& drawing) {
    const Array<Pto>& points = *array_of(drawing.selector);
    const Frame frame(drawing.selector, picture_of(drawing.picture));
    picture_of(drawing.picture).Cls();
    draw_chords(picture_of(drawing.picture), points, frame);
    DoEvents();
    draw_points(picture_of(drawing.picture), points, frame);
    DoEvents();
}

void draw(const Drawing& drawing) {
    trap([&] { draw_outline(drawing); },
         [&](const RuntimeError& failure) { show_trap(drawing.error_prefix, failure); });
}

} // namespace

void DibujaMini_A() {
    draw({"A", PreviewPicture::Pic_A, "Error DibujaMini_A nº: "});
}

void DibujaMini_B() {
    draw({"B", PreviewPicture::Pic_B, "Error DibujaMini_B nº: "});
}

void DibujaNewMini_A() {
    draw({"A2", PreviewPicture::Pic_A, "Error DibujaNewMini_A nº: "});
}

void DibujaNewMini_B() {
    draw({"B2", PreviewPicture::Pic_B, "Error DibujaNewMini_B nº: "});
}

void DibujaDefMini_A() {
    draw({"A2", PreviewPicture::New_Pic_A, "Error DibujaNewMini_A nº: "});
}

void DibujaDefMini_B() {
    draw({"B2", PreviewPicture::New_Pic_B, "Error DibujaDefMini_B nº: "});
}

} // namespace velmora
