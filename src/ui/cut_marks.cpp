#include "ui/cut_marks.h"

#include "toolkit/line_clip.h"

#include <QPaintDevice>
#include <algorithm>

namespace velmora {

namespace {

constexpr double kBeyond = 20; ///< so that the end of a clipped line doesn't show
constexpr double kNext = 0.5;  ///< pixels from one place to the next that is drawn
constexpr std::size_t kMostWords = 400;

} // namespace

QRectF room_of(const QPainter& painter) {
    const QPaintDevice& device = *painter.device();
    const double ratio = device.devicePixelRatioF();
    return QRectF(0, 0, device.width() / ratio, device.height() / ratio)
        .adjusted(-kBeyond, -kBeyond, kBeyond, kBeyond);
}

void draw_segment(QPainter& painter, QPointF from, QPointF to) {
    if (const auto line = part_inside({from, to}, room_of(painter)))
        painter.drawLine(*line);
}

void draw_line(QPainter& painter, std::span<const cutview::Seen> line, bool closed) {
    const QRectF room = room_of(painter);
    QPolygonF stretch;
    const auto draw = [&] {
        if (stretch.size() > 1)
            painter.drawPolyline(stretch);
        stretch.clear();
    };
    const std::size_t steps = line.empty() ? 0 : line.size() - (closed ? 0 : 1);
    QPointF from = line.empty() ? QPointF() : point_of(line.front());
    for (std::size_t i = 0; i < steps; ++i) {
        const QPointF to = point_of(line[(i + 1) % line.size()]);
        if (i + 1 < steps && (to - from).manhattanLength() < kNext)
            continue;
        if (const auto part = part_inside({from, to}, room)) {
            if (stretch.isEmpty() || stretch.last() != part->p1()) {
                draw();
                stretch << part->p1();
            }
            stretch << part->p2();
        }
        from = to;
    }
    draw();
}

Words::Words(QPainter& painter, const QColor& ground) : painter_(painter), ground_(ground) {
    ground_.setAlphaF(0.8F);
}

bool Words::write(QPointF beside, const QString& words, const QColor& colour) {
    if (taken_.size() >= kMostWords)
        return false;
    constexpr double away = 7;
    QRectF box = QRectF(painter_.fontMetrics().boundingRect(words)).adjusted(-3, 0, 3, 0);
    box.moveTopLeft(beside + QPointF(away, -away - box.height()));
    const auto covers = [&](const QRectF& other) {
        return other.intersects(box);
    };
    if (!room_of(painter_).contains(box) || std::ranges::any_of(taken_, covers))
        return false;
    taken_.push_back(box);
    painter_.fillRect(box, ground_);
    painter_.setPen(colour);
    painter_.drawText(box, Qt::AlignCenter, words);
    return true;
}

} // namespace velmora
