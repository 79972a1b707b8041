#include "import/dxf_shapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace velmora::imports {

namespace {

constexpr double full_turn = 2 * std::numbers::pi;
/// An angle that only the last digits of two others make.
constexpr double nothing = 1e-9;

double radians(double degrees) {
    return degrees * (std::numbers::pi / 180);
}

/// A direction in space.
struct Axis {
    double X = 0;
    double Y = 0;
    double Z = 0;
};

Axis crossed(const Axis& a, const Axis& b) {
    return {a.Y * b.Z - a.Z * b.Y, a.Z * b.X - a.X * b.Z, a.X * b.Y - a.Y * b.X};
}

Axis unit(const Axis& a) {
    const double size = std::hypot(a.X, a.Y, a.Z);
    return size > 0 ? Axis{a.X / size, a.Y / size, a.Z / size} : Axis{0, 0, 1};
}

Axis normal_of(const DxfEntity& entity) {
    return unit({entity.real(210), entity.real(220), entity.real(230, 1)});
}

Map moved(const Point& by) {
    return {1, 0, 0, 1, by.X, by.Y};
}

Map turned_by(double angle) {
    return {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0};
}

/// From the first angle counter-clockwise to the second; equal ones are a full turn.
double sweep_between(double start, double end) {
    const double sweep = std::fmod(end - start, full_turn);
    return sweep <= nothing ? sweep + full_turn : sweep;
}

bool is_full(double sweep) {
    return sweep >= full_turn - nothing;
}

std::optional<DxfShape> line(const DxfEntity& entity) {
    const auto from = entity.place(10);
    const auto to = entity.place(11);
    if (!from || !to)
        return {};
    return DxfShape{.what = DxfPath{.vertices = {{.at = *from}, {.at = *to}}, .plane = {}}};
}

std::optional<DxfShape> circle(const DxfEntity& entity) {
    const auto centre = entity.place(10);
    if (!centre || !entity.has(40))
        return {};
    const EllipseArc arc = circle_arc(*centre, entity.real(40), 0, full_turn);
    return DxfShape{.what = DxfArc{mapped(arc, plane_map(entity)), true}};
}

std::optional<DxfShape> arc(const DxfEntity& entity) {
    const auto centre = entity.place(10);
    if (!centre || !entity.has(40) || !entity.has(50) || !entity.has(51))
        return {};
    const double start = radians(entity.real(50));
    const double sweep = sweep_between(start, radians(entity.real(51)));
    const EllipseArc arc = circle_arc(*centre, entity.real(40), start, sweep);
    return DxfShape{.what = DxfArc{mapped(arc, plane_map(entity)), is_full(sweep)}};
}

std::optional<DxfShape> ellipse(const DxfEntity& entity) {
    const auto centre = entity.place(10);
    const auto major = entity.place(11);
    if (!centre || !major || !entity.has(40))
        return {};
    const Axis minor = crossed(normal_of(entity), {major->X, major->Y, entity.real(31)});
    const double start = entity.real(41);
    const double sweep = sweep_between(start, entity.real(42, full_turn));
    return DxfShape{.what = DxfArc{{.centre = *centre,
                                    .major = *major,
                                    .minor = entity.real(40) * Point{minor.X, minor.Y},
                                    .start = start,
                                    .sweep = sweep},
                                   is_full(sweep)}};
}

std::optional<DxfShape> light_polyline(const DxfEntity& entity) {
    if (entity.vertices().empty())
        return {};
    return DxfShape{.what =
                        DxfPath{entity.vertices(), plane_map(entity), (entity.whole(70) & 1) != 0}};
}

std::optional<DxfShape> fit_spline(const DxfEntity& entity, bool closed) {
    std::vector<Point> points = entity.fit_points();
    if (closed && !points.empty() && points.front() != points.back())
        points.push_back(points.front());
    auto curves = through(points, entity.place(12), entity.place(13));
    if (curves.empty())
        return {};
    return DxfShape{.what = DxfFitSpline{std::move(curves), closed}};
}

std::optional<DxfShape> spline(const DxfEntity& entity) {
    const bool closed = (entity.whole(70) & 1) != 0;
    Nurbs curve{.degree = static_cast<std::size_t>(std::max(0, entity.whole(71, 3))),
                .knots = entity.knots(),
                .points = {},
                .weights = entity.weights()};
    for (const DxfVertex& vertex : entity.vertices())
        curve.points.push_back(vertex.at);
    if (curve.weights.size() != curve.points.size())
        curve.weights.clear();
    if (!is_whole(curve))
        return fit_spline(entity, closed);
    return DxfShape{.what = DxfSpline{std::move(curve), closed}};
}

std::optional<DxfShape> dot_of(const DxfEntity& entity) {
    const auto at = entity.place(10);
    return at ? std::optional(DxfShape{.what = DxfDot{*at}}) : std::nullopt;
}

/// The third and fourth corner stand the other way round.
std::optional<DxfShape> solid(const DxfEntity& entity) {
    DxfPath path{.vertices = {}, .plane = plane_map(entity), .closed = true};
    for (const int code : {10, 11, 13, 12}) {
        if (const auto corner = entity.place(code))
            path.vertices.push_back({.at = *corner});
    }
    if (path.vertices.size() < 3)
        return {};
    return DxfShape{.what = std::move(path), .fill = true};
}

std::optional<DxfShape> insert(const DxfEntity& entity) {
    if (entity.name().empty())
        return {};
    const Point at = entity.place(10).value_or(Point{});
    return DxfShape{.what = DxfInsert{.block = std::string(entity.name()),
                                      .plane = plane_map(entity) * moved(at) *
                                               turned_by(radians(entity.real(50))),
                                      .scale_X = entity.real(41, 1),
                                      .scale_Y = entity.real(42, 1),
                                      .columns = std::max(1, entity.whole(70, 1)),
                                      .rows = std::max(1, entity.whole(71, 1)),
                                      .spacing = {entity.real(44), entity.real(45)}}};
}

struct Reader {
    std::string_view kind;
    std::optional<DxfShape> (*read)(const DxfEntity&);
};

constexpr std::array<Reader, 11> readers = {{{"LINE", line},
                                             {"ARC", arc},
                                             {"CIRCLE", circle},
                                             {"ELLIPSE", ellipse},
                                             {"LWPOLYLINE", light_polyline},
                                             {"SPLINE", spline},
                                             {"POINT", dot_of},
                                             {"INSERT", insert},
                                             {"SOLID", solid},
                                             {"TRACE", solid},
                                             {"MINSERT", insert}}};

const Reader* reader_of(std::string_view kind) {
    const auto* found = std::ranges::find(readers, kind, &Reader::kind);
    return found != readers.end() ? found : nullptr;
}

} // namespace

Map DxfInsert::placed(int column, int row, const Point& base) const {
    return plane * moved({column * spacing.X, row * spacing.Y}) *
           Map{scale_X, 0, 0, scale_Y, 0, 0} * moved({-base.X, -base.Y});
}

std::size_t DxfLoop::weight() const {
    std::size_t sum = 1 + edges.size();
    for (const auto& edge : edges) {
        if (const auto* curve = std::get_if<Nurbs>(&edge))
            sum += curve->points.size();
    }
    return sum;
}

Map plane_map(const DxfEntity& entity) {
    if (!entity.has(210) && !entity.has(220) && !entity.has(230))
        return {};
    const Axis normal = normal_of(entity);
    const bool upright = std::abs(normal.X) < 1.0 / 64 && std::abs(normal.Y) < 1.0 / 64;
    const Axis right = unit(crossed(upright ? Axis{0, 1, 0} : Axis{0, 0, 1}, normal));
    const Axis up = crossed(normal, right);
    const double elevation = entity.has(30) ? entity.real(30) : entity.real(38);
    return {right.X, right.Y, up.X, up.Y, elevation * normal.X, elevation * normal.Y};
}

bool draws_shape(std::string_view kind) {
    return reader_of(kind) != nullptr;
}

std::optional<DxfShape> shape_of(const DxfEntity& entity) {
    const Reader* reader = reader_of(entity.kind());
    return reader != nullptr ? reader->read(entity) : std::nullopt;
}

namespace {

struct EdgeDrawer {
    Map map;
    double tolerance;
    Pieces& pieces;

    void operator()(const DxfLine& line) const {
        pieces.add(map(line.from));
        pieces.add(map(line.to));
    }
    void operator()(const EllipseArc& arc) const { flatten(mapped(arc, map), tolerance, pieces); }
    void operator()(Nurbs curve) const {
        for (Point& point : curve.points)
            point = map(point);
        flatten(curve, tolerance, pieces);
    }
};

struct Drawer {
    const Map& map;
    double tolerance;
    Pieces& pieces;

    bool operator()(const DxfPath& path) const {
        const Map whole = map * path.plane;
        const std::size_t count = path.vertices.size();
        for (std::size_t i = 0; i < count; ++i) {
            const DxfVertex& vertex = path.vertices[i];
            pieces.add(whole(vertex.at));
            if (vertex.bulge == 0 || (i + 1 == count && !path.closed))
                continue;
            const Point& next = path.vertices[(i + 1) % count].at;
            if (const auto arc = bulge_arc(vertex.at, next, vertex.bulge))
                flatten_between(mapped(*arc, whole), tolerance, pieces);
        }
        return path.closed;
    }

    bool operator()(const DxfArc& arc) const {
        flatten(mapped(arc.arc, map), tolerance, pieces);
        return arc.closed;
    }

    bool operator()(const DxfSpline& spline) const {
        Nurbs curve = spline.curve;
        for (Point& point : curve.points)
            point = map(point);
        flatten(curve, tolerance, pieces);
        return spline.closed;
    }

    bool operator()(const DxfFitSpline& spline) const {
        for (const Bezier& c : spline.curves)
            flatten(Bezier{map(c.p0), map(c.p1), map(c.p2), map(c.p3)}, tolerance, pieces);
        return spline.closed;
    }

    /// An edge begins where the one before ends, to the last digits of its angles; the loop ends
    /// where it began.
    bool operator()(const DxfLoop& loop) const {
        Pieces edge;
        edge.begin(0, 0);
        for (const auto& drawn : loop.edges)
            std::visit(EdgeDrawer{map * loop.plane, tolerance, edge}, drawn);
        const std::vector<Point>& points = edge.pool();
        const double near = box_of(points).size() * nothing;
        for (std::size_t i = 0; i < points.size(); ++i) {
            const Point& next = i + 1 < points.size() ? points[i + 1] : points[0];
            if (distance(points[i], next) > near)
                pieces.add(points[i]);
        }
        return true;
    }

    bool operator()(const DxfDot& dot) const {
        pieces.add(map(dot.at));
        return false;
    }

    bool operator()(const DxfInsert&) const { return false; }
};

} // namespace

bool draw(const DxfShape& shape, const Map& map, double tolerance, Pieces& pieces) {
    return std::visit(Drawer{map, tolerance, pieces}, shape.what);
}

} // namespace velmora::imports
