#include "cutview/plane_view.h"

#include <cmath>

namespace velmora::cutview {

namespace {

constexpr double kMargin = 24;
constexpr double kLeastZoom = 0.1;
constexpr double kMostZoom = 100'000;
constexpr double kLeastLook = 4;
constexpr double kMostLook = 64;
constexpr double kRound = 4; // a part that is looked at has so many times its size round it

double share(double room, double size) {
    return size > 0 ? room / size : std::numeric_limits<double>::infinity();
}

} // namespace

double fitting_scale(double width, double height, double room_width, double room_height,
                     double margin) {
    const double wide = std::max(1.0, room_width - 2 * margin);
    const double high = std::max(1.0, room_height - 2 * margin);
    const double scale = std::min(share(wide, width), share(high, height));
    return std::isfinite(scale) && scale > 0 ? scale : 1;
}

void PlaneView::set_room(double width, double height) {
    width_ = width;
    height_ = height;
    if (fitted_)
        fit_again();
}

void PlaneView::fit(const Extent& drawing) {
    drawing_ = drawing;
    fit_again();
}

void PlaneView::fit_again() {
    fit_scale_ = fitting_scale(drawing_.width(), drawing_.height(), width_, height_, kMargin);
    scale_ = fit_scale_;
    middle_ = drawing_.middle();
    fitted_ = true;
}

void PlaneView::zoom(double factor, Spot around) {
    const Spot held = in_drawing(around);
    scale_ = std::clamp(scale_ * factor, fit_scale_ * kLeastZoom, fit_scale_ * kMostZoom);
    const Spot now = in_drawing(around);
    middle_ = {middle_.x + held.x - now.x, middle_.y + held.y - now.y};
    fitted_ = false;
}

void PlaneView::move(Spot by) {
    middle_ = {middle_.x - by.x / scale_, middle_.y + by.y / scale_};
    fitted_ = false;
}

void PlaneView::look_at(const Extent& part) {
    const double least = fit_scale_ * kLeastLook;
    const double most = fit_scale_ * kMostLook;
    const bool has_size = part.width() > 0 || part.height() > 0;
    const double scale =
        has_size ? fitting_scale(kRound * part.width(), kRound * part.height(), width_, height_, 0)
                 : most;
    scale_ = std::clamp(scale, least, most);
    middle_ = part.middle();
    fitted_ = false;
}

Spot PlaneView::on_screen(Spot drawing) const {
    return {width_ / 2 + (drawing.x - middle_.x) * scale_,
            height_ / 2 - (drawing.y - middle_.y) * scale_};
}

Spot PlaneView::in_drawing(Spot screen) const {
    return {middle_.x + (screen.x - width_ / 2) / scale_,
            middle_.y - (screen.y - height_ / 2) / scale_};
}

} // namespace velmora::cutview
