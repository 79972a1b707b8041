#include "cutview/strips.h"

#include <cmath>

namespace velmora::cutview {

namespace {

double apart(const Seen& one, const Seen& other) {
    return std::max(std::abs(one.x - other.x), std::abs(one.y - other.y));
}

double apart(Spot one, Spot other) {
    return std::hypot(one.x - other.x, one.y - other.y);
}

} // namespace

std::vector<std::size_t> told_apart(std::span<const Seen> one, std::span<const Seen> other,
                                    double least) {
    const std::size_t count = std::min(one.size(), other.size());
    std::vector<std::size_t> kept;
    for (std::size_t i = 0; i < count; ++i)
        if (kept.empty() || i + 1 == count || apart(one[i], one[kept.back()]) >= least ||
            apart(other[i], other[kept.back()]) >= least)
            kept.push_back(i);
    return kept;
}

std::vector<Strip> farthest_first(std::span<const std::size_t> kept, std::span<const Seen> one,
                                  std::span<const Seen> other) {
    std::vector<Strip> strips;
    for (std::size_t k = 1; k < kept.size(); ++k) {
        const std::size_t from = kept[k - 1];
        const std::size_t to = kept[k];
        strips.push_back(
            {from, to, one[from].depth + one[to].depth + other[from].depth + other[to].depth});
    }
    std::ranges::stable_sort(strips, std::ranges::greater(), &Strip::depth);
    return strips;
}

double distance_to_segment(Spot place, Spot from, Spot to) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = dx * dx + dy * dy;
    const double along =
        length > 0
            ? std::clamp(((place.x - from.x) * dx + (place.y - from.y) * dy) / length, 0.0, 1.0)
            : 0;
    return apart(place, {from.x + along * dx, from.y + along * dy});
}

std::optional<std::size_t> nearest_point(std::span<const Seen> line, Spot place, double reach) {
    std::optional<std::size_t> found;
    double nearest = reach;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const Spot here = line[i].spot();
        const Spot next = line[i + 1 < line.size() ? i + 1 : i].spot();
        const double distance = distance_to_segment(place, here, next);
        if (distance > nearest)
            continue;
        nearest = distance;
        found = apart(place, here) <= apart(place, next) ? i : i + 1;
    }
    return found;
}

} // namespace velmora::cutview
