// The cells of whole units that points lie in, numbered from 0 in the order of their first mention.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace velmora {

class CellIndex {
  public:
    static constexpr std::int32_t none = -1;

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
    [[nodiscard]] std::size_t first_slot_of(const Cell& cell) const;
    [[nodiscard]] std::size_t slot_of(const Cell& cell) const;

    std::vector<std::int32_t> slots_; ///< open addressing, a power of two; numbers of cells
    std::vector<Cell> cells_;         ///< by number
};

} // namespace velmora
