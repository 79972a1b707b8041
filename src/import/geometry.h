// Plane geometry of what is read: places, boxes, affine maps.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace velmora::imports {

struct Point {
    double X = 0;
    double Y = 0;
    bool operator==(const Point&) const = default;
};

inline Point operator+(const Point& a, const Point& b) {
    return {a.X + b.X, a.Y + b.Y};
}
inline Point operator-(const Point& a, const Point& b) {
    return {a.X - b.X, a.Y - b.Y};
}
inline Point operator*(double factor, const Point& a) {
    return {factor * a.X, factor * a.Y};
}
inline double dot(const Point& a, const Point& b) {
    return a.X * b.X + a.Y * b.Y;
}
inline double cross(const Point& a, const Point& b) {
    return a.X * b.Y - a.Y * b.X;
}
inline double length(const Point& a) {
    return std::hypot(a.X, a.Y);
}
inline double distance(const Point& a, const Point& b) {
    return length(b - a);
}
/// Left before right, then low before high.
inline bool lies_before(const Point& a, const Point& b) {
    return a.X < b.X || (a.X == b.X && a.Y < b.Y);
}

/// Nothing lies in a fresh one.
struct Box {
    double min_X = std::numeric_limits<double>::infinity();
    double min_Y = std::numeric_limits<double>::infinity();
    double max_X = -std::numeric_limits<double>::infinity();
    double max_Y = -std::numeric_limits<double>::infinity();

    void add(const Point& point) {
        min_X = std::min(min_X, point.X);
        min_Y = std::min(min_Y, point.Y);
        max_X = std::max(max_X, point.X);
        max_Y = std::max(max_Y, point.Y);
    }
    [[nodiscard]] bool empty() const { return min_X > max_X; }
    [[nodiscard]] double width() const { return empty() ? 0 : max_X - min_X; }
    [[nodiscard]] double height() const { return empty() ? 0 : max_Y - min_Y; }
    /// The longer side.
    [[nodiscard]] double size() const { return std::max(width(), height()); }
};

[[nodiscard]] inline Box box_of(std::span<const Point> points) {
    Box box;
    for (const Point& point : points)
        box.add(point);
    return box;
}

/// Twice the area that the closed polygon encloses; positive when it runs counter-clockwise.
[[nodiscard]] inline double twice_area(std::span<const Point> points) {
    double sum = 0;
    for (std::size_t i = 0; i + 2 < points.size(); ++i)
        sum += cross(points[i + 1] - points[0], points[i + 2] - points[0]);
    return sum;
}

/// p' = (a p.X + c p.Y + e, b p.X + d p.Y + f).
struct Map {
    double a = 1;
    double b = 0;
    double c = 0;
    double d = 1;
    double e = 0;
    double f = 0;

    [[nodiscard]] Point operator()(const Point& p) const {
        return {a * p.X + c * p.Y + e, b * p.X + d * p.Y + f};
    }
    /// Of a direction: without the displacement.
    [[nodiscard]] Point turned(const Point& p) const {
        return {a * p.X + c * p.Y, b * p.X + d * p.Y};
    }
};

/// First `inner`, then `outer`.
[[nodiscard]] inline Map operator*(const Map& outer, const Map& inner) {
    const Point x = outer.turned({inner.a, inner.b});
    const Point y = outer.turned({inner.c, inner.d});
    const Point origin = outer({inner.e, inner.f});
    return {x.X, x.Y, y.X, y.Y, origin.X, origin.Y};
}

} // namespace velmora::imports
