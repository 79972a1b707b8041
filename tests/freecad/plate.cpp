#include "plate.h"

#include <algorithm>
#include <cmath>

namespace velmora::test {

Place on_circle(Place centre, double radius, double angle) {
    return {centre.first + radius * std::cos(angle), centre.second + radius * std::sin(angle)};
}

namespace {

Place on_spline(double t) {
    const auto mix = [&](double p0, double p1, double p2, double p3) {
        const double u = 1 - t;
        return u * u * u * p0 + 3 * u * u * t * p1 + 3 * u * t * t * p2 + t * t * t * p3;
    };
    return {mix(10.5, 15.5, 25.5, 30.5), mix(35.5, 40.5, 30.5, 35.5)};
}

/// As it is drawn: the first point twice, then 49 steps, then the last one.
Places spline_points() {
    Places points{on_spline(0)};
    for (int step = 0; step < 50; ++step)
        points.push_back(on_spline(0.02 * step));
    points.push_back(on_spline(1));
    return points;
}

/// The arc of the sketch in seven steps.
Places arc_points() {
    Places points;
    for (int step = 0; step <= 7; ++step)
        points.push_back(on_circle({45.5, 30.5}, 5, step * kTurn / 28));
    return points;
}

/// Turned round, the middle pair keeps its drawn order: both runs have an even number of points.
Places reversed(Places points) {
    std::ranges::reverse(points);
    std::swap(points[points.size() / 2 - 1], points[points.size() / 2]);
    return points;
}

void add_behind(Places& outline, const Places& run) {
    outline.insert(outline.end(), run.begin() + 1, run.end());
}

} // namespace

Places plate_outline() {
    Places outline{{10.5, 10.5}, {50.5, 10.5}, {50.5, 30.5}};
    add_behind(outline, arc_points());
    add_behind(outline, {{45.5, 35.5}, {40.5, 32.5}, {30.5, 35.5}});
    add_behind(outline, reversed(spline_points()));
    outline.emplace_back(10.5, 10.5);
    for (int step = 1; step <= 12; ++step)
        outline.push_back(on_circle({8.5, 10.75}, 2, step * kTurn / 12));
    return outline;
}

Places plate_outline_from_corner() {
    Places outline{{50.5, 30.5}, {50.5, 10.5}, {10.5, 10.5}, {10.5, 35.5}};
    add_behind(outline, spline_points());
    add_behind(outline, {{30.5, 35.5}, {40.5, 32.5}, {45.5, 35.5}});
    add_behind(outline, reversed(arc_points()));
    return outline;
}

} // namespace velmora::test
