#include "ui/sides_drawing.h"

#include "cutview/strips.h"
#include "toolkit/line_clip.h"
#include "ui/cut_marks.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

namespace velmora {

namespace {

using cutting::Plane;
using cutting::SidePath;
using cutting::Which;
using cutview::PlaneView;
using cutview::Seen;
using Line = std::vector<Seen>;

constexpr double kOutline = 2;
constexpr double kDot = 1.8;
constexpr double kSync = 5;
constexpr double kApart = 1;         ///< pixels between joined lines that are told apart
constexpr std::size_t kSmooth = 600; ///< joined lines up to which their edges are smooth
constexpr double kDotsFrom = 7;      ///< pixels from point to point, from which on each is a dot
constexpr double kMarkWidth = 7;
constexpr double kRing = 11;
constexpr double kWire = 2.4;

Line line_of(const SidePath& side, const PlaneView& view) {
    Line line;
    line.reserve(side.points.size());
    for (const cutting::Point& point : side.points) {
        const cutview::Spot spot = view.on_screen({point.X, point.Y});
        line.push_back({spot.x, spot.y, 0});
    }
    return line;
}

/// One picture on its way.
class Sheet {
  public:
    Sheet(QPainter& painter, const CutShown& shown, const PlaneView& view,
          const CutColours& colours)
        : painter_(painter), shown_(shown), colours_(colours),
          sides_(shown.cut->sides(shown.plane)), A_(line_of(sides_.A, view)),
          B_(line_of(sides_.B, view)), words_(painter, colours.ground) {}

    void draw() {
        painter_.setRenderHint(QPainter::Antialiasing);
        draw_joins();
        draw_mark();
        draw_outline(A_, colours_.side_A);
        draw_outline(B_, colours_.side_B);
        draw_start(A_, colours_.side_A);
        draw_start(B_, colours_.side_B);
        draw_sync(sides_.A, A_, colours_.side_A);
        draw_sync(sides_.B, B_, colours_.side_B);
        draw_ring();
        draw_legend();
    }

  private:
    [[nodiscard]] bool paired() const { return are_paired(sides_); }

    void draw_joins() {
        if (paired() && shown_.joins.each > 0)
            draw_pairs();
        if (!shown_.joins.sync)
            return;
        const std::size_t both = std::min(sides_.A.sync.size(), sides_.B.sync.size());
        for (std::size_t n = 0; n < both; ++n) {
            painter_.setPen(QPen(n % 2 == 0 ? colours_.run : colours_.other_run, 1.6));
            draw_segment(painter_, point_of(A_[sides_.A.sync[n]]), point_of(B_[sides_.B.sync[n]]));
        }
    }

    void draw_pairs() {
        const std::size_t each = shown_.joins.each;
        Line one;
        Line other;
        std::vector<std::size_t> runs;
        for (std::size_t i = 0; i < A_.size(); i += each) {
            one.push_back(A_[i]);
            other.push_back(B_[i]);
            runs.push_back(run_of(sides_.A, i));
        }
        const std::vector<std::size_t> kept = cutview::told_apart(one, other, kApart);
        // So many lie side by side: smooth edges would cost much and show nothing.
        painter_.setRenderHint(QPainter::Antialiasing, kept.size() < kSmooth);
        std::array<QList<QLineF>, 2> lines; // by shade
        const QRectF room = room_of(painter_);
        for (const std::size_t i : kept)
            if (const auto line = part_inside({point_of(one[i]), point_of(other[i])}, room))
                lines[runs[i] % 2] << *line;
        for (const std::size_t shade : {0U, 1U}) {
            painter_.setPen(QPen(shade == 0 ? colours_.other_run : colours_.run, 1));
            painter_.drawLines(lines[shade]);
        }
        painter_.setRenderHint(QPainter::Antialiasing);
    }

    void draw_outline(const Line& line, const QColor& colour) {
        if (line.empty())
            return;
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(QPen(colour, kOutline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        draw_line(painter_, line, sides_.closed);
        if (line.size() == 1 || dots_have_room(line))
            draw_dots(line, colour);
    }

    [[nodiscard]] static bool dots_have_room(const Line& line) {
        double length = 0;
        for (std::size_t i = 1; i < line.size(); ++i)
            length += std::hypot(line[i].x - line[i - 1].x, line[i].y - line[i - 1].y);
        return length > kDotsFrom * static_cast<double>(line.size());
    }

    void draw_dots(const Line& line, const QColor& colour) {
        const QRectF room = room_of(painter_);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(colour);
        for (const Seen& seen : line)
            if (room.contains(point_of(seen)))
                painter_.drawEllipse(point_of(seen), kDot, kDot);
    }

    /// An arrow at the first point that can be told from the start, the way that the wire goes.
    void draw_start(const Line& line, const QColor& colour) {
        constexpr double arrow = 9;
        const auto next = std::ranges::find_if(line, [&](const Seen& seen) {
            return (point_of(seen) - point_of(line.front())).manhattanLength() > 2 * arrow;
        });
        if (next == line.end() || !room_of(painter_).contains(point_of(line.front())))
            return;
        const QPointF way = point_of(*next) - point_of(line.front());
        painter_.save();
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(colour);
        painter_.translate(point_of(line.front()));
        painter_.rotate(std::atan2(way.y(), way.x()) * 180 / M_PI);
        painter_.drawPolygon(QPolygonF({{2 * arrow, 0}, {arrow, -arrow / 2}, {arrow, arrow / 2}}));
        painter_.restore();
    }

    void draw_sync(const SidePath& side, const Line& line, const QColor& colour) {
        const QRectF room = room_of(painter_);
        for (std::size_t n = 0; n < side.sync.size(); ++n) {
            const QPointF place = point_of(line[side.sync[n]]);
            if (!room.contains(place))
                continue;
            painter_.setPen(QPen(colour, 1.6));
            painter_.setBrush(colours_.ground);
            painter_.drawEllipse(place, kSync, kSync);
            words_.write(place, QString::number(n + 1), colour);
        }
    }

    void draw_mark() {
        if (!shown_.mark)
            return;
        painter_.setPen(QPen(colours_.mark, kMarkWidth, Qt::SolidLine, Qt::RoundCap));
        const bool both = paired() && speaks_of_pairing(shown_.mark->kind);
        if (both || shown_.mark->side != Which::B)
            draw_stretch(A_);
        if (both || shown_.mark->side != Which::A)
            draw_stretch(B_);
    }

    void draw_stretch(const Line& line) {
        const std::vector<std::size_t> points = marked_points(*shown_.mark, line.size());
        for (std::size_t k = 1; k < points.size(); ++k)
            draw_segment(painter_, point_of(line[points[k - 1]]), point_of(line[points[k]]));
    }

    void draw_ring() {
        if (!shown_.mark)
            return;
        painter_.setPen(QPen(colours_.mark, 2));
        painter_.setBrush(Qt::NoBrush);
        const QRectF room = room_of(painter_);
        for (const Line* line : {&A_, &B_}) {
            const bool meant = shown_.mark->side == Which::both ||
                               (line == &A_) == (shown_.mark->side == Which::A);
            if (meant && shown_.mark->first < line->size() &&
                room.contains(point_of((*line)[shown_.mark->first])))
                painter_.drawEllipse(point_of((*line)[shown_.mark->first]), kRing, kRing);
        }
    }

    /// Which colour is which side, in the corner.
    void draw_legend() {
        constexpr double corner = 10;
        constexpr double length = 22;
        const double height = painter_.fontMetrics().height();
        QPointF at(corner, corner + height / 2);
        for (const auto& [name, colour] :
             {std::pair("A", colours_.side_A), {"B", colours_.side_B}}) {
            painter_.setPen(QPen(colour, kOutline));
            painter_.drawLine(at, at + QPointF(length, 0));
            painter_.drawText(at + QPointF(length + 6, height / 3), QLatin1String(name));
            at.ry() += height;
        }
    }

    QPainter& painter_;
    const CutShown& shown_;
    const CutColours& colours_;
    const cutting::Sides& sides_;
    Line A_, B_;
    Words words_;
};

void add(cutview::Extent& extent, const SidePath& side, std::size_t point) {
    if (point < side.points.size())
        extent.add({side.points[point].X, side.points[point].Y});
}

} // namespace

void draw_sides(QPainter& painter, const CutShown& shown, const PlaneView& view,
                const CutColours& colours) {
    Sheet(painter, shown, view, colours).draw();
}

void draw_wire_on_sides(QPainter& painter, const CutShown& shown, const PlaneView& view,
                        const CutColours& colours) {
    if (!shown.cut->has_wire())
        return;
    const bool towers = shown.plane == CutPlane::towers;
    const cutting::WirePlace at = place_at(shown.cut->wire, shown.along);
    const auto spot = [&](Plane plane) {
        const cutting::Point& point = at.at[cutting::index(plane)];
        return point_of(view.on_screen({point.X, point.Y}));
    };
    const QPointF A = spot(towers ? Plane::tower_A : Plane::face_A);
    const QPointF B = spot(towers ? Plane::tower_B : Plane::face_B);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colours.wire, kWire));
    draw_segment(painter, A, B);
    for (const auto& [place, colour] : {std::pair(A, colours.side_A), {B, colours.side_B}}) {
        painter.setPen(QPen(colours.wire, 1.4));
        painter.setBrush(colour);
        if (room_of(painter).contains(place))
            painter.drawEllipse(place, kSync, kSync);
    }
}

cutview::Extent extent_of_sides(const CutShown& shown) {
    cutview::Extent extent;
    const cutting::Sides& sides = shown.cut->sides(shown.plane);
    for (const SidePath* side : {&sides.A, &sides.B})
        for (std::size_t i = 0; i < side->points.size(); ++i)
            add(extent, *side, i);
    return extent;
}

cutview::Extent extent_of_mark(const CutShown& shown) {
    cutview::Extent extent;
    if (!shown.mark)
        return extent;
    const cutting::Sides& sides = shown.cut->sides(shown.plane);
    const bool both = shown.mark->side == Which::both ||
                      (are_paired(sides) && speaks_of_pairing(shown.mark->kind));
    for (const SidePath* side : {&sides.A, &sides.B}) {
        const bool meant = both || (side == &sides.A) == (shown.mark->side == Which::A);
        if (!meant)
            continue;
        add(extent, *side, shown.mark->first);
        for (const std::size_t point : marked_points(*shown.mark, side->points.size()))
            add(extent, *side, point);
    }
    return extent;
}

} // namespace velmora
