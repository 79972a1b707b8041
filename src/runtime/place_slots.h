// A hash table of places: the number under which each exact place is known to its user, who keeps
// the coordinates.
#pragma once

#include "runtime/prefetch.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace velmora::runtime {

/// Open addressing over a power of two of slots. It does not grow: some slot must stay free.
class PlaceSlots {
  public:
    static constexpr std::int32_t none = -1;

    explicit PlaceSlots(std::size_t least_slots) : numbers_(std::bit_ceil(least_slots), none) {}

    /// The number of the place; `none` where it has none yet, to be given one there. `is_place`
    /// tells of a number in the table whether it stands for this place.
    template <class IsPlace>
    [[nodiscard]] std::int32_t& number_of(double x, double y, IsPlace&& is_place) {
        return numbers_[slot_of(x, y, is_place)];
    }
    template <class IsPlace>
    [[nodiscard]] std::int32_t number_of(double x, double y, IsPlace&& is_place) const {
        return numbers_[slot_of(x, y, is_place)];
    }
    /// Fetches what a look for this place meets first, to be called some looks ahead.
    void expect(double x, double y) const { prefetch(&numbers_[first_slot_of(x, y)]); }

  private:
    [[nodiscard]] static std::uint64_t mixed(std::uint64_t bits) {
        bits ^= bits >> 32U;
        bits *= 0xD6E8FEB86659FD93U;
        bits ^= bits >> 32U;
        return bits;
    }
    /// A sum with 0 makes one place of the two zeros, as they are to ==.
    [[nodiscard]] static std::uint64_t hash_of(double x, double y) {
        const std::uint64_t of_x = mixed(std::bit_cast<std::uint64_t>(x + 0.0));
        return mixed(of_x + 0x9E3779B97F4A7C15U + std::bit_cast<std::uint64_t>(y + 0.0));
    }
    [[nodiscard]] std::size_t first_slot_of(double x, double y) const {
        return hash_of(x, y) & (numbers_.size() - 1);
    }
    template <class IsPlace>
    [[nodiscard]] std::size_t slot_of(double x, double y, IsPlace&& is_place) const {
        const std::size_t mask = numbers_.size() - 1;
        std::size_t slot = first_slot_of(x, y);
        while (numbers_[slot] != none && !is_place(numbers_[slot]))
            slot = (slot + 1) & mask;
        return slot;
    }

    std::vector<std::int32_t> numbers_;
};

} // namespace velmora::runtime
