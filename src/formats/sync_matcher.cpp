#include "formats/sync_matcher.h"

namespace velmora {

namespace {

constexpr std::int32_t kNone = runtime::PlaceSlots::none;

} // namespace

SyncMatcher::SyncMatcher(Array<Pto>& points) : SyncMatcher(points, points.upper()) {}

SyncMatcher::SyncMatcher(Array<Pto>& points, std::int32_t last)
    : points_(points), first_at_(2 * points.size()), next_(points.size(), kNone) {
    for (std::int32_t i = last; i >= 0; --i) {
        const Pto& point = points[i];
        std::int32_t& first = first_of(point.X, point.Y);
        next_[static_cast<std::size_t>(i)] = first;
        first = i;
    }
}

std::int32_t SyncMatcher::mark(double x, double y) {
    const std::int32_t first = first_of(x, y);
    if (first == kNone)
        return 0;
    const std::int32_t next = next_[static_cast<std::size_t>(first)];
    if (next < kNone)
        return kNone - next;
    return mark_chain(first);
}

std::int32_t SyncMatcher::mark_chain(std::int32_t first) {
    std::int32_t count = 0;
    for (std::int32_t i = first; i != kNone; i = next_[static_cast<std::size_t>(i)]) {
        points_[i].Sinc = 1;
        ++count;
    }
    next_[static_cast<std::size_t>(first)] = kNone - count;
    return count;
}

std::int32_t& SyncMatcher::first_of(double x, double y) {
    return first_at_.number_of(x, y, [&](std::int32_t first) {
        const Pto& point = points_[first];
        return point.X == x && point.Y == y;
    });
}

} // namespace velmora
