#include "formats/sync_matcher.h"

#include <bit>

namespace velmora {

namespace {

constexpr std::int32_t kNone = -1;

std::uint64_t hash_of(double x, double y) {
    // Both zeros are one place, as they are to ==.
    std::uint64_t bits = std::bit_cast<std::uint64_t>(x + 0.0) * 0x9E3779B97F4A7C15U;
    bits = (bits ^ (bits >> 32U)) + std::bit_cast<std::uint64_t>(y + 0.0);
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    return bits ^ (bits >> 31U);
}

} // namespace

SyncMatcher::SyncMatcher(Array<Pto>& points) : SyncMatcher(points, points.upper()) {}

SyncMatcher::SyncMatcher(Array<Pto>& points, std::int32_t last)
    : points_(points), first_at_(std::bit_ceil(2 * points.size()), kNone),
      next_(points.size(), kNone) {
    for (std::int32_t i = last; i >= 0; --i) {
        const Pto& point = points[i];
        std::int32_t& first = first_at_[slot_of(point.X, point.Y)];
        next_[static_cast<std::size_t>(i)] = first;
        first = i;
    }
}

std::int32_t SyncMatcher::mark(double x, double y) {
    const std::int32_t first = first_at_[slot_of(x, y)];
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

/// The slot of the place, or the free one where it would stand: half of the slots are free.
std::size_t SyncMatcher::slot_of(double x, double y) const {
    const std::size_t mask = first_at_.size() - 1;
    std::size_t slot = hash_of(x, y) & mask;
    while (first_at_[slot] != kNone) {
        const Pto& point = points_[first_at_[slot]];
        if (point.X == x && point.Y == y)
            break;
        slot = (slot + 1) & mask;
    }
    return slot;
}

} // namespace velmora
