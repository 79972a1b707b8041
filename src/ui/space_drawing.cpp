#include "ui/space_drawing.h"

#include "cutview/strips.h"
#include "ui/cut_marks.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace velmora {

namespace {

using cutting::Plane;
using cutview::Place;
using cutview::Seen;
using cutview::SpaceView;
using Line = std::vector<Seen>;

constexpr double kApart = 1.5; ///< pixels from one strip to the next
constexpr double kOutline = 1.8;
constexpr double kThin = 1;
constexpr double kWire = 2.6;
constexpr double kDot = 4;
constexpr double kPost = 5;
constexpr double kMarkWidth = 3;
constexpr double kRing = 9;

/// The faces of a box: an axis, and whether it is the face at its greater end.
struct Face {
    std::array<std::size_t, 4> corners;
    Place outward;
};
constexpr std::array<Face, 6> kFaces = {{{{0, 2, 6, 4}, {-1, 0, 0}},
                                         {{1, 3, 7, 5}, {1, 0, 0}},
                                         {{0, 1, 5, 4}, {0, -1, 0}},
                                         {{2, 3, 7, 6}, {0, 1, 0}},
                                         {{0, 1, 3, 2}, {0, 0, -1}},
                                         {{4, 5, 7, 6}, {0, 0, 1}}}};

/// How much of its light a sheet has, by how it is turned to who looks.
double light_of(const Seen& from, const Seen& to, const Seen& across) {
    const double ax = to.x - from.x;
    const double ay = to.y - from.y;
    const double az = to.depth - from.depth;
    const double bx = across.x - from.x;
    const double by = across.y - from.y;
    const double bz = across.depth - from.depth;
    const double nx = ay * bz - az * by;
    const double ny = az * bx - ax * bz;
    const double nz = ax * by - ay * bx;
    const double length = std::sqrt(nx * nx + ny * ny + nz * nz);
    constexpr double least = 0.7;
    return length > 0 ? least + (1 - least) * std::abs(nz) / length : 1;
}

class Stage {
  public:
    Stage(QPainter& painter, const CutShown& shown, const CutScene& scene, const SpaceView& view,
          const CutColours& colours)
        : painter_(painter), shown_(shown), scene_(scene), view_(view), colours_(colours),
          at_(place_at(shown.cut->wire, shown.along)), words_(painter, colours.ground) {}

    void draw() {
        painter_.setRenderHint(QPainter::Antialiasing);
        draw_table();
        draw_block(false);
        draw_outline(Plane::tower_A, colours_.side_A, kThin);
        draw_outline(Plane::tower_B, colours_.side_B, kThin);
        draw_sheet();
        draw_outline(Plane::face_A, colours_.side_A, kOutline);
        draw_outline(Plane::face_B, colours_.side_B, kOutline);
        draw_block(true);
        draw_tower(Plane::tower_A, colours_.side_A, QStringLiteral("A"));
        draw_tower(Plane::tower_B, colours_.side_B, QStringLiteral("B"));
        draw_mark();
        draw_wire();
    }

  private:
    [[nodiscard]] QPointF seen(const Place& place) const { return point_of(view_.seen(place)); }
    [[nodiscard]] Line line_of(Plane plane) const {
        Line line;
        line.reserve(scene_.lines[cutting::index(plane)].size());
        for (const Place& place : scene_.lines[cutting::index(plane)])
            line.push_back(view_.seen(place));
        return line;
    }
    [[nodiscard]] Place at(Plane plane) const {
        return scene_.at(plane, at_.at[cutting::index(plane)]);
    }

    void draw_table() {
        painter_.setPen(QPen(mixed(colours_.ground, colours_.text, 0.3), kThin));
        painter_.setBrush(mixed(colours_.ground, colours_.text, 0.06));
        const Place& a = scene_.least;
        const Place& b = scene_.most;
        painter_.drawPolygon(QPolygonF({seen({a.x, a.y, a.z}), seen({b.x, a.y, a.z}),
                                        seen({b.x, a.y, b.z}), seen({a.x, a.y, b.z})}));
    }

    [[nodiscard]] bool faces_who_looks(const Face& face) const {
        return view_.seen(face.outward).depth < view_.seen({}).depth - 1e-9;
    }

    /// Of the block first the faces behind the foam, then the edges before it.
    void draw_block(bool front) {
        const auto corners = corners_of(scene_.block_least, scene_.block_most);
        QColor fill = colours_.foam;
        fill.setAlphaF(front ? 0.12F : 0.35F);
        painter_.setPen(QPen(colours_.faint, kThin, front ? Qt::SolidLine : Qt::DashLine));
        painter_.setBrush(fill);
        for (const Face& face : kFaces) {
            if (faces_who_looks(face) != front)
                continue;
            QPolygonF polygon;
            for (const std::size_t corner : face.corners)
                polygon << seen(corners[corner]);
            painter_.drawPolygon(polygon);
        }
    }

    void draw_outline(Plane plane, const QColor& colour, double width) {
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(QPen(width > kThin ? colour : mixed(colours_.ground, colour, 0.6), width));
        draw_line(painter_, line_of(plane), false);
    }

    /// From the beginning to where the wire is.
    [[nodiscard]] Line cut_line(Plane plane) const {
        Line line = line_of(plane);
        line.resize(std::min(line.size(), at_.step + 1));
        line.push_back(view_.seen(at(plane)));
        return line;
    }

    void draw_sheet() {
        if (shown_.along <= 0)
            return;
        const Line one = cut_line(Plane::face_A);
        const Line other = cut_line(Plane::face_B);
        const std::vector<std::size_t> kept = cutview::told_apart(one, other, kApart);
        // Neighbours overlap by their edge, so that nothing shines through between them.
        painter_.setRenderHint(QPainter::Antialiasing, false);
        for (const cutview::Strip& strip : cutview::farthest_first(kept, one, other))
            draw_strip(strip, one, other);
        painter_.setRenderHint(QPainter::Antialiasing);
    }

    void draw_strip(const cutview::Strip& strip, const Line& one, const Line& other) {
        const bool odd = run_of(shown_.cut->piece.A, strip.from) % 2 != 0;
        const double light = light_of(one[strip.from], one[strip.to], other[strip.from]);
        const QColor colour = mixed(Qt::black, odd ? colours_.cut : colours_.other_cut, light);
        painter_.setPen(QPen(colour, 1));
        painter_.setBrush(colour);
        const std::array<QPointF, 4> corners = {point_of(one[strip.from]), point_of(one[strip.to]),
                                                point_of(other[strip.to]),
                                                point_of(other[strip.from])};
        painter_.drawConvexPolygon(corners.data(), static_cast<int>(corners.size()));
    }

    /// The rail on the table, the post that rides on it with the wire's end, and its name.
    void draw_tower(Plane plane, const QColor& colour, const QString& name) {
        const Place end = at(plane);
        const Place foot{end.x, scene_.least.y, end.z};
        const Place head{end.x, scene_.most.y, end.z};
        painter_.setPen(QPen(colours_.faint, 2));
        painter_.drawLine(seen({scene_.least.x, scene_.least.y, end.z}),
                          seen({scene_.most.x, scene_.least.y, end.z}));
        painter_.setPen(QPen(colours_.faint, kPost, Qt::SolidLine, Qt::FlatCap));
        painter_.drawLine(seen(foot), seen(head));
        painter_.setPen(QPen(colours_.text, 1));
        painter_.setBrush(colour);
        painter_.drawEllipse(seen(end), kDot, kDot);
        words_.write(seen(head), name, colour);
    }

    void draw_wire() {
        painter_.setPen(QPen(colours_.wire, 1.4));
        draw_segment(painter_, seen(at(Plane::tower_A)), seen(at(Plane::tower_B)));
        painter_.setPen(QPen(colours_.wire, kWire));
        draw_segment(painter_, seen(at(Plane::face_A)), seen(at(Plane::face_B)));
    }

    void draw_mark() {
        if (!shown_.mark)
            return;
        const Line A = line_of(Plane::face_A);
        const Line B = line_of(Plane::face_B);
        if (shown_.mark->first >= A.size())
            return;
        painter_.setBrush(Qt::NoBrush);
        painter_.setPen(QPen(colours_.mark, kMarkWidth));
        for (const Line* line : {&A, &B}) {
            const auto points = marked_points(*shown_.mark, line->size() - 1);
            for (std::size_t k = 1; k < points.size(); ++k)
                draw_segment(painter_, point_of((*line)[points[k - 1]]),
                             point_of((*line)[points[k]]));
            painter_.drawEllipse(point_of((*line)[shown_.mark->first]), kRing, kRing);
        }
        painter_.setPen(QPen(colours_.mark, 1.4));
        draw_segment(painter_, point_of(A[shown_.mark->first]), point_of(B[shown_.mark->first]));
    }

    QPainter& painter_;
    const CutShown& shown_;
    const CutScene& scene_;
    const SpaceView& view_;
    const CutColours& colours_;
    cutting::WirePlace at_;
    Words words_;
};

} // namespace

void draw_space(QPainter& painter, const CutShown& shown, const CutScene& scene,
                const SpaceView& view, const CutColours& colours) {
    Stage(painter, shown, scene, view, colours).draw();
}

std::array<Place, 8> outermost_of(const CutScene& scene) {
    return corners_of(scene.least, scene.most);
}

} // namespace velmora
