#include "cad/cell_index.h"

#include "runtime/numbers.h"
#include "runtime/prefetch.h"

#include <bit>

namespace velmora {

namespace {

std::uint64_t mixed(std::uint64_t bits) {
    bits ^= bits >> 32;
    bits *= 0xD6E8FEB86659FD93U;
    bits ^= bits >> 32;
    return bits;
}

std::uint64_t hash_of(double X, double Y) {
    const std::uint64_t of_x = mixed(std::bit_cast<std::uint64_t>(X));
    return mixed(of_x + 0x9E3779B97F4A7C15U + std::bit_cast<std::uint64_t>(Y));
}

} // namespace

// A quarter of the slots or more stays free, however many cells come.
CellIndex::CellIndex(std::size_t most_cells)
    : slots_(std::bit_ceil(most_cells + most_cells / 4 + 1), none) {}

std::int32_t CellIndex::mention(double X, double Y) {
    const Cell cell = cell_of(X, Y);
    std::int32_t& number = slots_[slot_of(cell)];
    if (number == none) {
        number = static_cast<std::int32_t>(cells_.size());
        cells_.push_back(cell);
    }
    return number;
}

void CellIndex::expect(double X, double Y) const {
    runtime::prefetch(&slots_[first_slot_of(cell_of(X, Y))]);
}

std::int32_t CellIndex::find(double X, double Y) const {
    return slots_[slot_of(cell_of(X, Y))];
}

CellIndex::Cell CellIndex::cell_of(double X, double Y) {
    // A sum with 0 makes one cell of the two zeros.
    return {runtime::Int(X) + 0.0, runtime::Int(Y) + 0.0};
}

std::size_t CellIndex::first_slot_of(const Cell& cell) const {
    return hash_of(cell.X, cell.Y) & (slots_.size() - 1);
}

/// The slot that holds the cell's number, or the free one where it would stand.
std::size_t CellIndex::slot_of(const Cell& cell) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = first_slot_of(cell);
    while (slots_[slot] != none && cells_[static_cast<std::size_t>(slots_[slot])] != cell)
        slot = (slot + 1) & mask;
    return slot;
}

} // namespace velmora
