#include "cutview/space_view.h"

#include "cutview/plane_view.h"

#include <cmath>
#include <numbers>

namespace velmora::cutview {

namespace {

constexpr double kMargin = 26;
constexpr double kLeastZoom = 0.1;
constexpr double kMostZoom = 100'000;

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

double product(const Place& one, const Place& other) {
    return one.x * other.x + one.y * other.y + one.z * other.z;
}

Place middle_of(std::span<const Place> scene) {
    if (scene.empty())
        return {};
    Place least = scene.front();
    Place most = scene.front();
    for (const Place& place : scene) {
        least = {std::min(least.x, place.x), std::min(least.y, place.y),
                 std::min(least.z, place.z)};
        most = {std::max(most.x, place.x), std::max(most.y, place.y), std::max(most.z, place.z)};
    }
    return {least.x + (most.x - least.x) / 2, least.y + (most.y - least.y) / 2,
            least.z + (most.z - least.z) / 2};
}

} // namespace

// At the front the wire runs to the right and X away from who looks. Turned by -90 X runs to the
// right and the wire towards who looks.
SpaceView::Axes SpaceView::axes_of(Turn turn) {
    const double around = radians(turn.around);
    const double over = radians(turn.over);
    const double c = std::cos(around);
    const double s = std::sin(around);
    const Place right{-s, 0, c};
    const Place ahead{c, 0, s};
    const double co = std::cos(over);
    const double so = std::sin(over);
    return {.right = right,
            .up = {ahead.x * so, co, ahead.z * so},
            .away = {ahead.x * co, -so, ahead.z * co}};
}

void SpaceView::set_room(double width, double height) {
    width_ = width;
    height_ = height;
}

void SpaceView::fit(std::span<const Place> scene) {
    pivot_ = middle_of(scene);
    scale_ = 1;
    moved_ = {};
    fitted_ = true;
    Extent extent;
    for (const Place& place : scene)
        extent.add(seen(place).spot());
    scale_ = fit_scale_ = fitting_scale(extent.width(), extent.height(), width_, height_, kMargin);
    const Spot middle = extent.middle();
    if (!extent.empty())
        moved_ = {(width_ / 2 - middle.x) * scale_, (height_ / 2 - middle.y) * scale_};
}

void SpaceView::turn_to(Turn turn) {
    turn_ = turn;
    axes_ = axes_of(turn);
}

void SpaceView::turn_by(double right, double up) {
    turn_to(
        {std::remainder(turn_.around + right, 360.0), std::clamp(turn_.over + up, -90.0, 90.0)});
}

void SpaceView::zoom(double factor, Spot around) {
    const double before = scale_;
    scale_ = std::clamp(scale_ * factor, fit_scale_ * kLeastZoom, fit_scale_ * kMostZoom);
    const double grown = scale_ / before;
    const Spot arm{around.x - width_ / 2, around.y - height_ / 2};
    moved_ = {arm.x + (moved_.x - arm.x) * grown, arm.y + (moved_.y - arm.y) * grown};
    fitted_ = false;
}

void SpaceView::move(Spot by) {
    moved_ = {moved_.x + by.x, moved_.y + by.y};
    fitted_ = false;
}

Seen SpaceView::seen(Place place) const {
    const Place from{place.x - pivot_.x, place.y - pivot_.y, place.z - pivot_.z};
    return {.x = width_ / 2 + moved_.x + product(from, axes_.right) * scale_,
            .y = height_ / 2 + moved_.y - product(from, axes_.up) * scale_,
            .depth = product(from, axes_.away)};
}

} // namespace velmora::cutview
