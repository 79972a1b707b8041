#include "import/curves.h"

#include "import/nurbs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

namespace velmora::imports {
namespace {

constexpr double pi = std::numbers::pi;

template <class Curve>
std::vector<Point> flat(const Curve& curve, double tolerance) {
    Pieces pieces;
    pieces.begin(1, 0);
    flatten(curve, tolerance, pieces);
    pieces.end(false);
    return pieces.pool();
}

/// How far the chords lie from points of the curve, looked at closely.
double farthest_from_chords(const std::vector<Point>& chords,
                            const std::function<Point(double)>& curve) {
    double farthest = 0;
    for (int i = 0; i <= 2000; ++i) {
        const Point p = curve(i / 2000.0);
        double nearest = 1e300;
        for (std::size_t k = 0; k + 1 < chords.size(); ++k) {
            const Point chord = chords[k + 1] - chords[k];
            const double part = std::clamp(dot(p - chords[k], chord) / dot(chord, chord), 0.0, 1.0);
            nearest = std::min(nearest, distance(p, chords[k] + part * chord));
        }
        farthest = std::max(farthest, nearest);
    }
    return farthest;
}

TEST(ImportCurves, a_circle_has_the_pieces_that_its_tolerance_asks_for) {
    // 2 pi / (2 acos(1 - 0.0001)) = 222.1
    EXPECT_EQ(chords_of(circle_arc({0, 0}, 100, 0, 2 * pi), 0.01), 223U);
    EXPECT_EQ(flat(circle_arc({0, 0}, 100, 0, 2 * pi), 0.01).size(), 224U);
    EXPECT_EQ(chords_of(circle_arc({0, 0}, 1, 0, 2 * pi), 50), 4U);
    EXPECT_EQ(chords_of(circle_arc({0, 0}, 1, 0, pi / 4), 50), 1U);
    EXPECT_EQ(chords_of(circle_arc({0, 0}, 0, 0, pi), 0.01), 1U);
    EXPECT_EQ(chords_of(circle_arc({0, 0}, 1e15, 0, pi), 1e-9), 100'000U);
}

TEST(ImportCurves, no_chord_is_farther_from_its_curve_than_the_tolerance) {
    const EllipseArc ellipse{{5, 7}, {30, 10}, {-2, 6}, 0.3, 4.5};
    for (const double tolerance : {1.0, 0.1, 0.001}) {
        const auto chords = flat(ellipse, tolerance);
        const auto on = [&](double t) {
            return ellipse.at(0.3 + 4.5 * t);
        };
        EXPECT_LE(farthest_from_chords(chords, on), tolerance);
        EXPECT_NEAR(distance(chords.front(), on(0)), 0, 1e-12);
        EXPECT_NEAR(distance(chords.back(), on(1)), 0, 1e-12);
    }
    const Bezier bezier{{0, 0}, {0, 80}, {100, -50}, {60, 10}};
    const auto on_bezier = [&](double t) {
        const double s = 1 - t;
        return s * s * s * bezier.p0 + 3 * s * s * t * bezier.p1 + 3 * s * t * t * bezier.p2 +
               t * t * t * bezier.p3;
    };
    for (const double tolerance : {1.0, 0.01})
        EXPECT_LE(farthest_from_chords(flat(bezier, tolerance), on_bezier), tolerance);
}

TEST(ImportCurves, the_pieces_are_not_many_more_than_needed) {
    const auto chords = flat(Bezier{{0, 0}, {0, 80}, {100, -50}, {60, 10}}, 0.01);
    EXPECT_LT(chords.size(), 180U);
    EXPECT_EQ(flat(Bezier{{0, 0}, {1, 0}, {2, 0}, {3, 0}}, 0.01).size(), 2U);
}

TEST(ImportCurves, a_bulge_of_one_is_half_a_circle_to_the_right_of_the_chord) {
    // Counter-clockwise from (0, 0) to (2, 0): below the chord.
    const auto arc = bulge_arc({0, 0}, {2, 0}, 1);
    ASSERT_TRUE(arc);
    EXPECT_NEAR(arc->sweep, pi, 1e-15);
    EXPECT_NEAR(distance(arc->centre, {1, 0}), 0, 1e-15);
    EXPECT_NEAR(distance(arc->at(arc->start + arc->sweep / 2), {1, -1}), 0, 1e-15);
    const auto quarter = bulge_arc({1, 0}, {0, 1}, std::tan(pi / 8));
    EXPECT_NEAR(distance(quarter->centre, {0, 0}), 0, 1e-15);
    const auto back = bulge_arc({0, 1}, {1, 0}, -std::tan(pi / 8));
    EXPECT_NEAR(distance(back->centre, {0, 0}), 0, 1e-15);
    EXPECT_NEAR(back->sweep, -pi / 2, 1e-15);
    EXPECT_FALSE(bulge_arc({0, 0}, {2, 0}, 0));
    EXPECT_FALSE(bulge_arc({1, 1}, {1, 1}, 1));
}

TEST(ImportCurves, a_mapped_arc_is_the_map_of_the_arc) {
    const EllipseArc arc = circle_arc({1, 2}, 3, 0.5, 2);
    const Map map{-2, 0.5, 0.25, 4, 10, 20};
    for (const double t : {0.5, 1.0, 2.5})
        EXPECT_NEAR(distance(mapped(arc, map).at(t), map(arc.at(t))), 0, 1e-12);
}

Nurbs quarter_circle() {
    return {.degree = 2,
            .knots = {0, 0, 0, 1, 1, 1},
            .points = {{1, 0}, {1, 1}, {0, 1}},
            .weights = {1, std::sqrt(0.5), 1}};
}

TEST(ImportCurves, a_rational_spline_is_an_exact_circle) {
    const auto points = flat(quarter_circle(), 0.001);
    EXPECT_EQ(points.front(), (Point{1, 0}));
    EXPECT_NEAR(distance(points.back(), {0, 1}), 0, 1e-15);
    for (const Point& point : points)
        EXPECT_NEAR(length(point), 1, 1e-14);
    const auto on = [](double t) {
        return Point{std::cos(t * pi / 2), std::sin(t * pi / 2)};
    };
    EXPECT_LE(farthest_from_chords(points, on), 0.001);
}

TEST(ImportCurves, a_clamped_cubic_of_four_points_is_a_bezier) {
    const Nurbs spline{.degree = 3,
                       .knots = {0, 0, 0, 0, 1, 1, 1, 1},
                       .points = {{0, 0}, {0, 80}, {100, -50}, {60, 10}},
                       .weights = {}};
    const auto chords = flat(spline, 0.01);
    const auto on = [](double t) {
        const double s = 1 - t;
        return Point{300 * s * t * t + 60 * t * t * t,
                     240 * s * s * t - 150 * s * t * t + 10 * t * t * t};
    };
    EXPECT_LE(farthest_from_chords(chords, on), 0.01);
    EXPECT_EQ(chords.back(), (Point{60, 10}));
}

TEST(ImportCurves, an_unclamped_spline_is_drawn_between_its_inner_knots) {
    // A uniform quadratic begins and ends in the middle of its first and last control lines.
    const Nurbs spline{.degree = 2,
                       .knots = {0, 1, 2, 3, 4, 5, 6},
                       .points = {{0, 0}, {2, 0}, {2, 2}, {0, 2}},
                       .weights = {}};
    const auto points = flat(spline, 0.01);
    EXPECT_NEAR(distance(points.front(), {1, 0}), 0, 1e-15);
    EXPECT_NEAR(distance(points.back(), {1, 2}), 0, 1e-15);
}

TEST(ImportCurves, a_spline_that_does_not_fit_together_is_refused) {
    Nurbs spline = quarter_circle();
    EXPECT_TRUE(is_whole(spline));
    spline.knots.pop_back();
    EXPECT_FALSE(is_whole(spline));
    spline = quarter_circle();
    spline.knots = {0, 0, 1, 0, 1, 1};
    EXPECT_FALSE(is_whole(spline));
    spline = quarter_circle();
    spline.weights[1] = 0;
    EXPECT_FALSE(is_whole(spline));
    spline = quarter_circle();
    spline.knots = {0, 0, 0, 0, 0, 0};
    EXPECT_FALSE(is_whole(spline));
    EXPECT_FALSE(is_whole({.degree = 3, .knots = {}, .points = {}, .weights = {}}));
    EXPECT_FALSE(is_whole({.degree = 0, .knots = {0, 1}, .points = {{0, 0}}, .weights = {}}));
}

TEST(ImportCurves, through_points_goes_through_them_with_one_curvature) {
    const std::vector<Point> points = {{0, 0}, {1, 2}, {3, 3}, {3, 3}, {6, 1}};
    const auto curves = through(points, {}, {});
    ASSERT_EQ(curves.size(), 3U);
    EXPECT_EQ(curves[0].p0, (Point{0, 0}));
    EXPECT_EQ(curves[1].p0, (Point{1, 2}));
    EXPECT_EQ(curves[2].p3, (Point{6, 1}));
    const double lengths[] = {std::sqrt(5.0), std::sqrt(5.0), std::sqrt(13.0)};
    for (std::size_t i = 0; i + 1 < curves.size(); ++i) {
        const Bezier& a = curves[i];
        const Bezier& b = curves[i + 1];
        const Point slope = 1 / lengths[i] * (a.p3 - a.p2) - 1 / lengths[i + 1] * (b.p1 - b.p0);
        EXPECT_NEAR(length(slope), 0, 1e-14);
        const Point bend = 1 / (lengths[i] * lengths[i]) * (a.p1 - 2 * a.p2 + a.p3) -
                           1 / (lengths[i + 1] * lengths[i + 1]) * (b.p0 - 2 * b.p1 + b.p2);
        EXPECT_NEAR(length(bend), 0, 1e-14);
    }
    // Straight at the ends without a direction, along it where there is one.
    EXPECT_NEAR(length(curves[0].p0 - 2 * curves[0].p1 + curves[0].p2), 0, 1e-14);
    const auto directed = through(points, Point{0, 5}, Point{1, 0});
    EXPECT_NEAR(directed[0].p1.X, 0, 1e-15);
    EXPECT_NEAR(directed[2].p2.Y, 1, 1e-15);
    EXPECT_TRUE(through(std::vector<Point>{{1, 1}, {1, 1}}, {}, {}).empty());
}

TEST(ImportPieces, take_no_point_twice_and_none_beyond_all_numbers) {
    Pieces pieces;
    pieces.begin(3, 1);
    for (const Point& point : {Point{0, 0}, Point{0, 0}, Point{1, 0}, Point{1e300, 0},
                               Point{NAN, 0}, Point{1, 0}, Point{0, 0}})
        pieces.add(point);
    pieces.end(true);
    pieces.begin(4, 0);
    pieces.end(false);
    ASSERT_EQ(pieces.all().size(), 1U);
    EXPECT_EQ(pieces.all()[0].count, 3U);
    EXPECT_EQ(pieces.all()[0].line, 3U);
    EXPECT_TRUE(pieces.all()[0].closed);
}

} // namespace
} // namespace velmora::imports
