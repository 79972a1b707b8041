#include "import/end_nodes.h"

#include "runtime/prefetch.h"

#include <bit>
#include <cmath>
#include <limits>

namespace velmora::imports {

namespace {

constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();
/// Sides of a cell in gaps: few places lie so near a border that a second cell is looked at.
constexpr double gaps_per_cell = 8;

struct Cell {
    std::int64_t X;
    std::int64_t Y;
    Point place;                ///< the one that was kept first
    std::uint32_t number = 0;   ///< its
    std::uint32_t first = none; ///< of the places in it
};

struct Place {
    Point point;
    std::uint32_t next;
};

/// Places that are kept lie farther than the gap from each other, so that a cell holds few.
class Gatherer {
  public:
    Gatherer(std::span<const Point> places, double gap)
        : gap_(gap), side_(gap * gaps_per_cell),
          slots_(std::bit_ceil(2 * places.size() + 2), none) {
        const Box box = box_of(places);
        corner_ = box.empty() ? Point{} : Point{box.min_X, box.min_Y};
    }

    /// Fetches what a mention of this point looks at first, to be called some mentions ahead.
    void expect(const Point& point) const {
        const Point offset = point - corner_;
        runtime::prefetch(&slots_[first_slot_of(column(offset.X), column(offset.Y))]);
    }
    /// The same for what it looks at next, once that has come.
    void expect_cell(const Point& point) const {
        const Point offset = point - corner_;
        const std::uint32_t cell = slots_[first_slot_of(column(offset.X), column(offset.Y))];
        if (cell != none)
            runtime::prefetch(&cells_[cell]);
    }

    std::uint32_t mention(const Point& point) {
        const std::int64_t X = column(point.X - corner_.X);
        const std::int64_t Y = column(point.Y - corner_.Y);
        const std::uint32_t own = slots_[slot_of(X, Y)];
        if (own != none) {
            if (cells_[own].place == point)
                return cells_[own].number;
            for (std::uint32_t i = cells_[own].first; i != none; i = places_[i].next) {
                if (places_[i].point == point)
                    return i;
            }
        }
        const std::uint32_t near = joined_near(point, X, Y);
        return near != none ? near : keep(point, X, Y);
    }

    std::uint32_t root(std::uint32_t i) {
        while (parents_[i] != i)
            i = parents_[i] = parents_[parents_[i]];
        return i;
    }
    [[nodiscard]] std::size_t size() const { return places_.size(); }

  private:
    [[nodiscard]] std::int64_t column(double offset) const {
        return static_cast<std::int64_t>(std::floor(offset / side_));
    }

    [[nodiscard]] std::size_t first_slot_of(std::int64_t X, std::int64_t Y) const {
        const std::uint64_t mixed = static_cast<std::uint64_t>(X) * 0x9E3779B97F4A7C15U ^
                                    static_cast<std::uint64_t>(Y) * 0xC2B2AE3D27D4EB4FU;
        return (mixed ^ mixed >> 29) & (slots_.size() - 1);
    }

    [[nodiscard]] std::size_t slot_of(std::int64_t X, std::int64_t Y) const {
        std::size_t slot = first_slot_of(X, Y);
        while (slots_[slot] != none && (cells_[slots_[slot]].X != X || cells_[slots_[slot]].Y != Y))
            slot = (slot + 1) & (slots_.size() - 1);
        return slot;
    }

    /// One of the places within the gap, all of them joined; `none` where there is none.
    std::uint32_t joined_near(const Point& point, std::int64_t X, std::int64_t Y) {
        const Point offset = point - corner_;
        const auto touched = [&](double at, std::int64_t own, int step) {
            return step == 0 || column(at + step * gap_) == own + step;
        };
        std::uint32_t found = none;
        for (int right = -1; right <= 1; ++right) {
            for (int up = -1; up <= 1; ++up) {
                if (touched(offset.X, X, right) && touched(offset.Y, Y, up))
                    join_near(point, slots_[slot_of(X + right, Y + up)], found);
            }
        }
        return found;
    }

    void join_near(const Point& point, std::uint32_t cell, std::uint32_t& found) {
        if (cell == none)
            return;
        for (std::uint32_t i = cells_[cell].first; i != none; i = places_[i].next) {
            if (distance(places_[i].point, point) > gap_)
                continue;
            if (found == none)
                found = i;
            else
                parents_[root(i)] = root(found);
        }
    }

    std::uint32_t keep(const Point& point, std::int64_t X, std::int64_t Y) {
        const std::size_t slot = slot_of(X, Y);
        if (slots_[slot] == none) {
            slots_[slot] = static_cast<std::uint32_t>(cells_.size());
            cells_.push_back({X, Y, point, static_cast<std::uint32_t>(places_.size())});
        }
        Cell& cell = cells_[slots_[slot]];
        const auto i = static_cast<std::uint32_t>(places_.size());
        places_.push_back({point, cell.first});
        parents_.push_back(i);
        return cell.first = i;
    }

    double gap_;
    double side_;
    Point corner_;
    std::vector<std::uint32_t> slots_; ///< open addressing, a power of two; numbers of cells
    std::vector<Cell> cells_;
    std::vector<Place> places_;
    std::vector<std::uint32_t> parents_;
};

} // namespace

std::vector<std::uint32_t> nodes_of(std::span<const Point> places, double gap) {
    Gatherer gatherer(places, gap);
    std::vector<std::uint32_t> nodes;
    nodes.reserve(places.size());
    constexpr std::size_t ahead = 16;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (i + 2 * ahead < places.size())
            gatherer.expect(places[i + 2 * ahead]);
        if (i + ahead < places.size())
            gatherer.expect_cell(places[i + ahead]);
        nodes.push_back(gatherer.mention(places[i]));
    }
    std::vector<std::uint32_t> numbers(gatherer.size(), none);
    std::uint32_t count = 0;
    for (std::uint32_t& node : nodes) {
        std::uint32_t& number = numbers[gatherer.root(node)];
        if (number == none)
            number = count++;
        node = number;
    }
    return nodes;
}

} // namespace velmora::imports
