#include "ui/sides_pic.h"

#include "cutview/strips.h"
#include "ui/sides_drawing.h"

#include <QPainter>
#include <cmath>

namespace velmora {

namespace {

constexpr double kReach = 12; // pixels from an outline that a click counts for it

} // namespace

void SidesPic::fit() {
    view_.fit(extent_of_sides(shown()));
}

void SidesPic::zoom(double factor, QPointF around) {
    view_.zoom(factor, {around.x(), around.y()});
}

void SidesPic::drag(QPointF by, bool) {
    view_.move({by.x(), by.y()});
}

void SidesPic::go_to_mark() {
    const cutview::Extent extent = extent_of_mark(shown());
    if (!extent.empty())
        view_.look_at(extent);
}

void SidesPic::take_room(QSizeF room) {
    view_.set_room(room.width(), room.height());
}

void SidesPic::start_over() {
    sheet_ = {};
}

void SidesPic::draw_sheet() {
    const QSizeF size = QSizeF(contentsRect().size()) * devicePixelRatioF();
    sheet_ = QPixmap(static_cast<int>(std::ceil(size.width())),
                     static_cast<int>(std::ceil(size.height())));
    sheet_.setDevicePixelRatio(devicePixelRatioF());
    sheet_.fill(colours().ground);
    QPainter painter(&sheet_);
    painter.setFont(font());
    draw_sides(painter, shown(), view_, colours());
}

void SidesPic::paint(QPainter& painter) {
    if (sheet_.isNull() || sheet_.devicePixelRatio() != devicePixelRatioF())
        draw_sheet();
    painter.drawPixmap(QPointF(), sheet_);
    draw_wire_on_sides(painter, shown(), view_, colours());
}

std::optional<std::size_t> SidesPic::point_at(QPointF place) const {
    const cutting::Sides& sides = shown().cut->sides(shown().plane);
    for (const cutting::SidePath* side : {&sides.A, &sides.B}) {
        std::vector<cutview::Seen> line;
        for (const cutting::Point& point : side->points) {
            const cutview::Spot spot = view_.on_screen({point.X, point.Y});
            line.push_back({spot.x, spot.y, 0});
        }
        if (const auto found = cutview::nearest_point(line, {place.x(), place.y()}, kReach))
            return found;
    }
    return {};
}

} // namespace velmora
