#include "import/curves.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velmora::imports {

namespace {

constexpr double most_chords = 100'000;
constexpr double quarter = std::numbers::pi / 2;

/// The longest half axis of the ellipse that two vectors span.
double longest_radius(const Point& major, const Point& minor) {
    const double sum = dot(major, major) + dot(minor, minor);
    const double area = cross(major, minor);
    const double root = std::sqrt(std::max(0.0, sum * sum / 4 - area * area));
    return std::sqrt(sum / 2 + root);
}

/// The last digits of a count do not make one more.
std::size_t count_of(double pieces) {
    return static_cast<std::size_t>(std::clamp(std::ceil(pieces - 1e-9), 1.0, most_chords));
}

Point on(const Bezier& curve, double t) {
    const double s = 1 - t;
    return s * s * s * curve.p0 + 3 * s * s * t * curve.p1 + 3 * s * t * t * curve.p2 +
           t * t * t * curve.p3;
}

} // namespace

EllipseArc circle_arc(const Point& centre, double radius, double start, double sweep) {
    return {centre, {radius, 0}, {0, radius}, start, sweep};
}

EllipseArc mapped(const EllipseArc& arc, const Map& map) {
    return {map(arc.centre), map.turned(arc.major), map.turned(arc.minor), arc.start, arc.sweep};
}

std::optional<EllipseArc> bulge_arc(const Point& from, const Point& to, double bulge) {
    const Point chord = to - from;
    const double span = length(chord);
    if (bulge == 0 || span == 0)
        return {};
    const double off = (1 - bulge * bulge) / (4 * bulge);
    const Point centre = 0.5 * (from + to) + off * Point{-chord.Y, chord.X};
    const double radius = span * (1 + bulge * bulge) / (4 * std::abs(bulge));
    const double start = std::atan2(from.Y - centre.Y, from.X - centre.X);
    return circle_arc(centre, radius, start, 4 * std::atan(bulge));
}

Bezier raised(const Point& p0, const Point& p1, const Point& p2) {
    return {p0, p0 + 2.0 / 3 * (p1 - p0), p2 + 2.0 / 3 * (p1 - p2), p2};
}

std::size_t chords_of(const EllipseArc& arc, double tolerance) {
    const double radius = longest_radius(arc.major, arc.minor);
    const double sweep = std::abs(arc.sweep);
    if (radius == 0)
        return 1;
    const double step = 2 * std::acos(1 - std::min(tolerance / radius, 1.0));
    const double by_tolerance = step > 0 ? sweep / step : most_chords;
    return count_of(std::max(by_tolerance, sweep / quarter));
}

void flatten(const EllipseArc& arc, double tolerance, Pieces& pieces) {
    pieces.add(arc.at(arc.start));
    flatten_between(arc, tolerance, pieces);
    pieces.add(arc.at(arc.start + arc.sweep));
}

void flatten_between(const EllipseArc& arc, double tolerance, Pieces& pieces) {
    pieces.mark_curved();
    const std::size_t count = chords_of(arc, tolerance);
    for (std::size_t i = 1; i < count && !pieces.full(); ++i) {
        const double part = static_cast<double>(i) / static_cast<double>(count);
        pieces.add(arc.at(arc.start + part * arc.sweep));
    }
}

void flatten(const Bezier& curve, double tolerance, Pieces& pieces) {
    pieces.mark_curved();
    const double bend = std::max(length(curve.p0 - 2 * curve.p1 + curve.p2),
                                 length(curve.p1 - 2 * curve.p2 + curve.p3));
    const std::size_t count = count_of(std::sqrt(0.75 * bend / tolerance));
    pieces.add(curve.p0);
    for (std::size_t i = 1; i < count && !pieces.full(); ++i)
        pieces.add(on(curve, static_cast<double>(i) / static_cast<double>(count)));
    pieces.add(curve.p3);
}

namespace {

/// Solves a system of three diagonals, `middle` and `right` being used up; the answer is in
/// `right`.
void solve(const std::vector<double>& below, std::vector<double>& middle,
           const std::vector<double>& above, std::vector<Point>& right) {
    for (std::size_t i = 1; i < right.size(); ++i) {
        const double factor = below[i] / middle[i - 1];
        middle[i] -= factor * above[i - 1];
        right[i] = right[i] - factor * right[i - 1];
    }
    right.back() = 1 / middle.back() * right.back();
    for (std::size_t i = right.size() - 1; i-- > 0;)
        right[i] = 1 / middle[i] * (right[i] - above[i] * right[i + 1]);
}

std::vector<Point> without_repeats(std::span<const Point> points) {
    std::vector<Point> kept(points.begin(), points.end());
    kept.erase(std::ranges::unique(kept).begin(), kept.end());
    return kept;
}

std::optional<Point> unit(const std::optional<Point>& direction) {
    if (!direction || length(*direction) == 0)
        return {};
    return 1 / length(*direction) * *direction;
}

} // namespace

std::vector<Bezier> through(std::span<const Point> points,
                            const std::optional<Point>& first_direction,
                            const std::optional<Point>& last_direction) {
    const std::vector<Point> at = without_repeats(points);
    if (at.size() < 2)
        return {};
    const std::size_t last = at.size() - 1;
    const auto span = [&](std::size_t i) {
        return distance(at[i], at[i + 1]);
    };
    const auto slope = [&](std::size_t i) {
        return 3 / (span(i) * span(i)) * (at[i + 1] - at[i]);
    };
    std::vector<double> below(at.size()), middle(at.size()), above(at.size());
    std::vector<Point> direction(at.size());
    for (std::size_t i = 0; i <= last; ++i) {
        below[i] = i > 0 ? 1 / span(i - 1) : 0;
        above[i] = i < last ? 1 / span(i) : 0;
        middle[i] = 2 * (below[i] + above[i]);
        direction[i] = (i > 0 ? slope(i - 1) : Point{}) + (i < last ? slope(i) : Point{});
    }
    const auto fix = [&](std::size_t i, const std::optional<Point>& given) {
        if (!given)
            return;
        below[i] = above[i] = 0;
        middle[i] = 1;
        direction[i] = *given;
    };
    fix(0, unit(first_direction));
    fix(last, unit(last_direction));
    solve(below, middle, above, direction);
    std::vector<Bezier> curves;
    for (std::size_t i = 0; i < last; ++i)
        curves.push_back({at[i], at[i] + span(i) / 3 * direction[i],
                          at[i + 1] - span(i) / 3 * direction[i + 1], at[i + 1]});
    return curves;
}

} // namespace velmora::imports
