#include "ui/space_pic.h"

#include "cutview/strips.h"
#include "ui/space_drawing.h"

#include <QPainter>

namespace velmora {

namespace {

constexpr double kDegrees = 0.5; // by a pixel of the hand
constexpr double kReach = 12;

} // namespace

bool SpacePic::has_picture() const {
    return CutPic::has_picture() && scene_.has_value();
}

void SpacePic::start_over() {
    if (of_ == shown().cut)
        return;
    of_ = shown().cut;
    scene_ = of_ != nullptr && of_->drawable() ? scene_of(*of_) : std::nullopt;
}

void SpacePic::fit() {
    view_.fit(outermost_of(*scene_));
}

void SpacePic::turn_to(cutview::Turn turn) {
    view_.turn_to(turn);
    if (has_picture())
        fit();
    update();
}

void SpacePic::zoom(double factor, QPointF around) {
    view_.zoom(factor, {around.x(), around.y()});
}

void SpacePic::drag(QPointF by, bool aside) {
    if (aside)
        view_.move({by.x(), by.y()});
    else
        view_.turn_by(by.x() * kDegrees, by.y() * kDegrees);
}

void SpacePic::go_to_mark() {
    const std::size_t point = shown().mark->first;
    const auto& line = scene_->lines[cutting::index(cutting::Plane::face_A)];
    if (point >= line.size())
        return;
    const cutview::Seen seen = view_.seen(line[point]);
    const QRectF room({}, QSizeF(contentsRect().size()));
    if (!room.contains(seen.x, seen.y))
        view_.move({room.center().x() - seen.x, room.center().y() - seen.y});
}

void SpacePic::take_room(QSizeF room) {
    view_.set_room(room.width(), room.height());
    if (view_.fitted() && has_picture())
        fit();
}

void SpacePic::paint(QPainter& painter) {
    draw_space(painter, shown(), *scene_, view_, colours());
}

bool SpacePic::take_key(int key) {
    switch (key) {
    case Qt::Key_1:
        turn_to(cutview::kPlan);
        return true;
    case Qt::Key_2:
        turn_to(cutview::kFront);
        return true;
    case Qt::Key_3:
        turn_to(cutview::kSide);
        return true;
    case Qt::Key_4:
        turn_to(cutview::kInSpace);
        return true;
    default:
        return false;
    }
}

std::optional<std::size_t> SpacePic::point_at(QPointF place) const {
    for (const cutting::Plane plane : {cutting::Plane::face_A, cutting::Plane::face_B}) {
        std::vector<cutview::Seen> line;
        for (const cutview::Place& point : scene_->lines[cutting::index(plane)])
            line.push_back(view_.seen(point));
        if (const auto found = cutview::nearest_point(line, {place.x(), place.y()}, kReach))
            return found;
    }
    return {};
}

} // namespace velmora
