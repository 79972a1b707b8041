// What the pictures of a cut draw alike: lines of seen places, rings, words on a ground of their
// own.
#pragma once

#include "cutview/space_view.h"

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <span>
#include <vector>

namespace velmora {

[[nodiscard]] inline QPointF point_of(cutview::Spot spot) {
    return {spot.x, spot.y};
}
[[nodiscard]] inline QPointF point_of(const cutview::Seen& seen) {
    return {seen.x, seen.y};
}

/// The line through the places, without those that no eye tells from the one before. What lies far
/// outside the room is cut off.
void draw_line(QPainter& painter, std::span<const cutview::Seen> line, bool closed);

/// A segment, as far as it lies in the room.
void draw_segment(QPainter& painter, QPointF from, QPointF to);

/// The words beside a place, kept inside the room; not where others stand already. True where they
/// were written.
class Words {
  public:
    Words(QPainter& painter, const QColor& ground);
    bool write(QPointF beside, const QString& words, const QColor& colour);

  private:
    QPainter& painter_;
    QColor ground_;
    std::vector<QRectF> taken_;
};

/// The part of a picture that lines are kept to, beyond its edges by a little.
[[nodiscard]] QRectF room_of(const QPainter& painter);

} // namespace velmora
