#include "import/order.h"

#include <algorithm>

namespace velmora::imports {

namespace {

/// Points of a trailing edge share its x but for their last digits.
constexpr double edge_share = 1e-6;

template <class Before>
void start_first(Chain& chain, Before before) {
    std::vector<Point>& points = chain.points;
    if (points.empty())
        return;
    if (chain.closed)
        std::ranges::rotate(points, std::ranges::min_element(points, before));
    else if (before(points.back(), points.front()))
        std::ranges::reverse(points);
}

void run(Chain& chain, bool counter_clockwise) {
    const double area = twice_area(chain.points);
    if (chain.closed && area != 0 && (area > 0) != counter_clockwise)
        std::reverse(chain.points.begin() + 1, chain.points.end());
}

void append(std::vector<Point>& points, const Chain& chain) {
    std::vector<Point> next = chain.points;
    if (chain.closed && !next.empty())
        next.push_back(next.front());
    if (points.empty() || next.empty()) {
        points.insert(points.end(), next.begin(), next.end());
        return;
    }
    if (distance(points.back(), next.back()) < distance(points.back(), next.front()))
        std::ranges::reverse(next);
    const bool same = points.back() == next.front();
    points.insert(points.end(), next.begin() + (same ? 1 : 0), next.end());
}

} // namespace

Chain joined(std::span<const Chain> chains) {
    if (chains.size() == 1)
        return chains[0];
    Chain whole;
    for (std::size_t i = 0; i < chains.size(); ++i) {
        // The first one has no end before it: it is left by the end that the second is nearer to.
        if (i == 1 && !chains[0].closed && !whole.points.empty() && !chains[1].points.empty()) {
            const auto nearest = [&](const Point& end) {
                return std::min(distance(end, chains[1].points.front()),
                                distance(end, chains[1].points.back()));
            };
            if (nearest(whole.points.front()) < nearest(whole.points.back()))
                std::ranges::reverse(whole.points);
        }
        append(whole.points, chains[i]);
    }
    if (!chains.empty()) {
        whole.name = chains[0].name;
        whole.line = chains[0].line;
    }
    whole.closed = whole.points.size() > 2 && whole.points.front() == whole.points.back();
    if (whole.closed)
        whole.points.pop_back();
    return whole;
}

void start_leftmost(Chain& chain) {
    start_first(chain, lies_before);
}

void start_rightmost(Chain& chain) {
    start_first(chain, [](const Point& a, const Point& b) {
        return a.X > b.X || (a.X == b.X && a.Y < b.Y);
    });
}

void start_at_trailing_edge(Chain& chain) {
    start_rightmost(chain);
    if (!chain.closed || chain.points.size() < 3)
        return;
    std::vector<Point>& points = chain.points;
    const Box box = box_of(points);
    const auto on_edge = [&](const Point& point) {
        return point.X >= box.max_X - edge_share * box.width();
    };
    // The start lies on the edge; the chain begins with the last point of it.
    std::size_t last = 0;
    while (last + 1 < points.size() && on_edge(points[last + 1]))
        ++last;
    std::ranges::rotate(points, points.begin() + static_cast<std::ptrdiff_t>(last));
}

void run_counter_clockwise(Chain& chain) {
    run(chain, true);
}

void run_clockwise(Chain& chain) {
    run(chain, false);
}

void reverse(Chain& chain) {
    std::ranges::reverse(chain.points);
}

void scale(Chain& chain, double factor) {
    for (Point& point : chain.points)
        point = factor * point;
}

void scale_to_chord(Chain& chain, double chord) {
    const double width = box_of(chain.points).width();
    if (width > 0)
        scale(chain, chord / width);
}

std::size_t remove_doubles(Chain& chain) {
    std::vector<Point>& points = chain.points;
    const std::size_t before = points.size();
    points.erase(std::ranges::unique(points).begin(), points.end());
    while (chain.closed && points.size() > 1 && points.front() == points.back())
        points.pop_back();
    return before - points.size();
}

} // namespace velmora::imports
