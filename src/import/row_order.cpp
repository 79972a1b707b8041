#include "import/row_order.h"

#include <algorithm>
#include <cmath>

namespace velmora::imports {

namespace {

constexpr double hysteresis = 0.02;
constexpr double whole_drop = 0.8;
constexpr double near_ends = 0.25;
constexpr std::size_t most_turns = 100;

bool starts_high(std::span<const Point> points, const Box& box) {
    return points.front().X > (box.min_X + box.max_X) / 2;
}

} // namespace

std::vector<std::size_t> turns_of_x(std::span<const Point> points) {
    std::vector<std::size_t> turns;
    const double least = hysteresis * box_of(points).width();
    if (points.empty() || least == 0)
        return turns;
    std::size_t lowest = 0;
    std::size_t highest = 0;
    int direction = 0;
    for (std::size_t i = 1; i < points.size() && turns.size() < most_turns; ++i) {
        const double x = points[i].X;
        if (x < points[lowest].X)
            lowest = i;
        if (x > points[highest].X)
            highest = i;
        if (direction >= 0 && points[highest].X - x > least) {
            if (direction > 0)
                turns.push_back(highest);
            direction = -1;
            lowest = i;
        } else if (direction <= 0 && x - points[lowest].X > least) {
            if (direction < 0)
                turns.push_back(lowest);
            direction = 1;
            highest = i;
        }
        // While it falls only the lowest counts, while it rises only the highest.
        if (direction < 0)
            highest = lowest;
        if (direction > 0)
            lowest = highest;
    }
    return turns;
}

std::size_t only_jump(std::span<const Point> points, double least) {
    const double step = least * box_of(points).width();
    std::size_t found = 0;
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (std::abs(points[i].X - points[i - 1].X) <= step)
            continue;
        if (found != 0)
            return 0;
        found = i;
    }
    return found;
}

std::vector<Point> joined_halves(std::span<const Point> first, std::span<const Point> second) {
    std::vector<Point> points(first.rbegin(), first.rend());
    if (!points.empty() && !second.empty() && points.back() == second.front())
        second = second.subspan(1);
    points.insert(points.end(), second.begin(), second.end());
    return points;
}

std::vector<Point> started_right(std::vector<Point> points) {
    if (points.size() > 1 && points.front() == points.back())
        points.pop_back();
    const auto rightmost = std::ranges::max_element(points, {}, &Point::X);
    std::ranges::rotate(points, rightmost);
    return points;
}

bool comes_back(std::span<const Point> points) {
    return distance(points.front(), points.back()) <= near_ends * box_of(points).size();
}

Course course_of(std::span<const Point> points) {
    Course course{.turns = turns_of_x(points)};
    const Box box = box_of(points);
    const bool high = !points.empty() && starts_high(points, box);
    if (course.turns.empty()) {
        course.order = RowOrder::as_it_is;
        course.open = true;
    } else if (course.turns.size() == 1) {
        course.order = high ? RowOrder::selig : RowOrder::from_the_nose;
    } else if (course.turns.size() == 2 && !high && only_jump(points, whole_drop) != 0) {
        course.order = RowOrder::lednicer;
    }
    return course;
}

} // namespace velmora::imports
