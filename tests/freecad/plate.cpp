#include "plate.h"

#include <algorithm>
#include <cmath>

namespace velmora::test {

Place on_circle(Place centre, double radius, double angle) {
    return {centre.first + radius * std::cos(angle), centre.second + radius * std::sin(angle)};
}

namespace {

/// The arc of the sketch in seven steps.
Places arc_points() {
    Places points;
    for (int step = 0; step <= 7; ++step)
        points.push_back(on_circle({45.5, 30.5}, 5, step * kTurn / 28));
    return points;
}

/// Turned round, the middle pair of 4, 8, 12 ... points keeps its drawn order.
Places reversed(Places points) {
    std::ranges::reverse(points);
    if (points.size() % 4 == 0)
        std::swap(points[points.size() / 2 - 1], points[points.size() / 2]);
    return points;
}

void add_behind(Places& outline, const Places& run) {
    outline.insert(outline.end(), run.begin() + 1, run.end());
}

} // namespace

Places plate_outline(const Places& curve) {
    Places outline{{10.5, 10.5}, {50.5, 10.5}, {50.5, 30.5}};
    add_behind(outline, arc_points());
    add_behind(outline, {{45.5, 35.5}, {40.5, 32.5}, {30.5, 35.5}});
    add_behind(outline, reversed(curve));
    outline.emplace_back(10.5, 10.5);
    for (int step = 1; step <= 12; ++step)
        outline.push_back(on_circle({8.5, 10.75}, 2, step * kTurn / 12));
    return outline;
}

Places plate_outline_from_corner(const Places& curve) {
    Places outline{{50.5, 30.5}, {50.5, 10.5}, {10.5, 10.5}, {10.5, 35.5}};
    add_behind(outline, curve);
    add_behind(outline, {{30.5, 35.5}, {40.5, 32.5}, {45.5, 35.5}});
    add_behind(outline, reversed(arc_points()));
    return outline;
}

} // namespace velmora::test
