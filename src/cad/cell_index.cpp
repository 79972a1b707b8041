#include "cad/cell_index.h"

#include "runtime/numbers.h"

namespace velmora {

// A quarter of the slots or more stays free, however many cells come.
CellIndex::CellIndex(std::size_t most_cells) : numbers_(most_cells + most_cells / 4 + 1) {}

std::int32_t CellIndex::mention(double X, double Y) {
    const Cell cell = cell_of(X, Y);
    std::int32_t& number = numbers_.number_of(cell.X, cell.Y, is(cell));
    if (number == none) {
        number = static_cast<std::int32_t>(cells_.size());
        cells_.push_back(cell);
    }
    return number;
}

void CellIndex::expect(double X, double Y) const {
    const Cell cell = cell_of(X, Y);
    numbers_.expect(cell.X, cell.Y);
}

std::int32_t CellIndex::find(double X, double Y) const {
    const Cell cell = cell_of(X, Y);
    return numbers_.number_of(cell.X, cell.Y, is(cell));
}

CellIndex::Cell CellIndex::cell_of(double X, double Y) {
    // A sum with 0 makes one cell of the two zeros.
    return {runtime::Int(X) + 0.0, runtime::Int(Y) + 0.0};
}

} // namespace velmora
