// The cells of whole units that points lie in, numbered from 0 in the order of their first mention.
#pragma once

#include "runtime/place_slots.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace velmora {

class CellIndex {
  public:
    static constexpr std::int32_t none = runtime::PlaceSlots::none;

    /// `most_cells` is the number of mentions at most.
    explicit CellIndex(std::size_t most_cells);

    /// The number of the point's cell, a new one where it had none.
    [[nodiscard]] std::int32_t mention(double X, double Y);
    /// Fetches what a mention of this point will look at first, to be called some mentions ahead.
    void expect(double X, double Y) const;
    /// The number of the point's cell, `none` where it was never mentioned.
    [[nodiscard]] std::int32_t find(double X, double Y) const;

  private:
    struct Cell {
        double X;
        double Y;
        bool operator==(const Cell&) const = default;
    };

    [[nodiscard]] static Cell cell_of(double X, double Y);
    /// Whether a number is the cell's.
    [[nodiscard]] auto is(const Cell& cell) const {
        return [this, cell](std::int32_t number) {
            return cells_[static_cast<std::size_t>(number)] == cell;
        };
    }

    runtime::PlaceSlots numbers_;
    std::vector<Cell> cells_; ///< by number
};

} // namespace velmora
