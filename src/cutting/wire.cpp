#include "cutting/wire.h"

#include "import/number_text.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace velmora::cutting {

namespace {

bool within_numbers(const std::vector<Point>& points) {
    return std::ranges::all_of(points, [](const Point& point) {
        return std::abs(point.X) <= imports::largest_number &&
               std::abs(point.Y) <= imports::largest_number;
    });
}

WireFault fault_of(const Sides& sides) {
    if (sides.A.points.size() != sides.B.points.size() || !sides.paired)
        return WireFault::unequal_counts;
    if (sides.A.points.size() < 2)
        return WireFault::too_few_points;
    if (!within_numbers(sides.A.points) || !within_numbers(sides.B.points))
        return WireFault::beyond_numbers;
    return WireFault::none;
}

Wire faulty(WireFault fault) {
    return {.fault = fault};
}

void close(Wire& wire) {
    for (std::vector<Point>& points : wire.points)
        points.push_back(points.front());
}

void measure(Wire& wire) {
    const std::vector<Point>& A = wire.points[index(Plane::face_A)];
    const std::vector<Point>& B = wire.points[index(Plane::face_B)];
    wire.along.assign(1, 0);
    for (std::size_t i = 1; i < A.size(); ++i)
        wire.along.push_back(wire.along.back() +
                             std::max(distance(A[i - 1], A[i]), distance(B[i - 1], B[i])));
}

/// The four planes are filled, the way is not yet closed.
Wire finished(Wire wire, bool closed) {
    if (!std::ranges::all_of(wire.points, within_numbers))
        return faulty(WireFault::beyond_numbers);
    wire.closed = closed;
    if (closed)
        close(wire);
    measure(wire);
    return wire;
}

PerPlane<double> depths(const Distances& to) {
    return {-(to.Z + to.X), 0, to.Z, to.Z + (to.Z + to.Y)};
}

bool usable(const Distances& to) {
    return to.Z != 0 && std::isfinite(to.X) && std::isfinite(to.Y) && std::isfinite(to.Z);
}

Array<Pto> outline_of(const std::vector<Point>& points) {
    Array<Pto> outline;
    outline.reserve(points.size());
    for (const Point& point : points)
        outline.append({.X = point.X, .Y = point.Y});
    return outline;
}

/// By the adjustment's own routine, which raises where the numbers end.
bool carry_outward(Wire& wire, const Sides& faces, const Distances& to) {
    bool carried = true;
    trap(
        [&] {
            const TwoSides towers =
                projected(outline_of(faces.A.points), outline_of(faces.B.points), to);
            wire.points[index(Plane::tower_A)] = side_path(towers.A).points;
            wire.points[index(Plane::tower_B)] = side_path(towers.B).points;
        },
        [&](const RuntimeError&) { carried = false; });
    return carried;
}

/// What the towers' places are of the way between the faces, per millimetre of it: how far each
/// side was carried outward.
struct Reach {
    double A = 0;
    double B = 0;
    [[nodiscard]] double whole() const { return 1 + A + B; }
};

Reach reach_of(const Distances& to) {
    return {(to.Z + to.X) / to.Z, (to.Z + to.Y) / to.Z};
}

/// To a millionth of a thousandth: the way back leaves the last bits of a place to chance, and a
/// side that stands still would tremble.
Point steadied(const Point& point) {
    constexpr int decimals = 9;
    return {runtime::Round(point.X, decimals), runtime::Round(point.Y, decimals)};
}

void carry_inward(Wire& wire, const Sides& towers, const Reach& reach) {
    for (std::size_t i = 0; i < towers.A.points.size(); ++i) {
        const Point& A = towers.A.points[i];
        const Point& B = towers.B.points[i];
        const Point between = (1 / reach.whole()) * (A - B);
        wire.points[index(Plane::face_A)].push_back(steadied(A - reach.A * between));
        wire.points[index(Plane::face_B)].push_back(steadied(B + reach.B * between));
    }
}

} // namespace

Wire wire_of_faces(const Sides& faces, const Distances& distances) {
    if (const WireFault fault = fault_of(faces); fault != WireFault::none)
        return faulty(fault);
    if (!usable(distances))
        return faulty(WireFault::no_distance);
    Wire wire{.depth = depths(distances)};
    wire.points[index(Plane::face_A)] = faces.A.points;
    wire.points[index(Plane::face_B)] = faces.B.points;
    if (!carry_outward(wire, faces, distances))
        return faulty(WireFault::beyond_numbers);
    return finished(std::move(wire), faces.closed);
}

Wire wire_of_towers(const Sides& towers, const Distances& distances) {
    if (const WireFault fault = fault_of(towers); fault != WireFault::none)
        return faulty(fault);
    if (!usable(distances) || reach_of(distances).whole() == 0)
        return faulty(WireFault::no_distance);
    Wire wire{.depth = depths(distances)};
    wire.points[index(Plane::tower_A)] = towers.A.points;
    wire.points[index(Plane::tower_B)] = towers.B.points;
    carry_inward(wire, towers, reach_of(distances));
    return finished(std::move(wire), towers.closed);
}

Wire wire_of_roads(const Sides& roads, double between) {
    if (const WireFault fault = fault_of(roads); fault != WireFault::none)
        return faulty(fault);
    Wire wire{.depth = {0, 0, between, between}};
    wire.points = {roads.A.points, roads.A.points, roads.B.points, roads.B.points};
    return finished(std::move(wire), roads.closed);
}

Sides sides_at_faces(const Wire& wire, const Sides& made_of) {
    Sides faces = made_of;
    faces.A.points = wire.points[index(Plane::face_A)];
    faces.B.points = wire.points[index(Plane::face_B)];
    if (wire.closed && wire.size() > 0) {
        faces.A.points.pop_back();
        faces.B.points.pop_back();
    }
    return faces;
}

WirePlace place_at(const Wire& wire, double along) {
    if (wire.size() < 2)
        return {};
    const double held = along > 0 ? std::min(along, wire.length()) : 0;
    const auto behind = std::ranges::upper_bound(wire.along, held);
    const auto next =
        std::min(static_cast<std::size_t>(behind - wire.along.begin()), wire.size() - 1);
    WirePlace place{.step = next - 1};
    const double step = wire.along[next] - wire.along[place.step];
    place.part = step > 0 ? std::clamp((held - wire.along[place.step]) / step, 0.0, 1.0) : 1;
    for (std::size_t plane = 0; plane < planes; ++plane) {
        const Point& from = wire.points[plane][place.step];
        place.at[plane] = from + place.part * (wire.points[plane][next] - from);
    }
    return place;
}

WireNumbers numbers_of(const Wire& wire) {
    WireNumbers numbers;
    for (std::size_t plane = 0; plane < planes; ++plane) {
        const std::vector<Point>& points = wire.points[plane];
        numbers.extents[plane] = box_of(points);
        for (std::size_t i = 1; i < points.size(); ++i)
            numbers.lengths[plane] += distance(points[i - 1], points[i]);
    }
    for (const Plane tower : {Plane::tower_A, Plane::tower_B})
        for (const Point& point : wire.points[index(tower)])
            numbers.towers.add(point);
    return numbers;
}

double minutes_at(const Wire& wire, double speed) {
    return speed > 0 ? wire.length() / speed : 0;
}

Fit fit_of(const WireNumbers& numbers, double travel_X, double travel_Y) {
    const auto over = [](double size, double travel) {
        return travel > 0 ? std::max(0.0, size - travel) : 0;
    };
    return {over(numbers.towers.width(), travel_X), over(numbers.towers.height(), travel_Y)};
}

} // namespace velmora::cutting
