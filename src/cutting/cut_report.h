// What is worth a look before two outlines are cut together: plain entries of kinds, places and
// numbers; their sentences are the window's business. It changes nothing.
#pragma once

#include "cutting/sides.h"

#include <array>
#include <cstddef>
#include <vector>

namespace velmora::cutting {

/// Lengths in millimetres. Each is a person's choice; the reasons are those of the shipped numbers.
struct Thresholds {
    double still =
        0.05; ///< a side that moves less stands still: half the width of a hot wire's cut
    double still_while = 1; ///< and the other more meanwhile: the wire melts a hole where it stands
    double factor = 2;      ///< of two lengths of a step: wires are set for a speed and its half
    double least_step =
        0.1; ///< steps are taken together up to this length before they are compared
    double least_back = 0.01; ///< how far a step runs against the other side's before lines cross
    double close = 0.1;       ///< points closer than this: controllers take 100 lines a second
    double run_factor = 1.5;  ///< of the shares that both sides have in a run between sync points
};

enum class Finding : unsigned char {
    // What keeps the sides from being cut together.
    too_few_points,   ///< value: how many; `side`
    all_points_equal, ///< `side`
    beyond_numbers,   ///< a coordinate beyond 1e15 at `first`; no other check looks at that side
    counts_differ,    ///< of points that should be paired; value: A's, other: B's
    // Pairing.
    sync_totals_differ, ///< value: A's, other: B's
    no_sync_points,     ///< of sides that are not paired point by point; `side`
    sync_apart,         ///< A's n-th sync point is at `first`, B's is not; value: B's place
    opposite_turn,      ///< one side runs round clockwise, the other counter-clockwise
    runs_differ,  ///< from sync point `first` to `last` of A; value: factor of the shares, over 1
    stands_still, ///< `side` from `first` to `last`; value: the length that the other moves
                  ///< meanwhile
    steps_differ, ///< value: the largest factor, infinite where one moves not at all; `side` the
                  ///< shorter
    lines_cross, ///< value: length that one side runs against the other; other: depth, 0 at A, 1 at
                 ///< B
    repeat_on_one_side, ///< `side` has the same point twice, the other moves; files lose it on that
                        ///< side
    // Each side by itself.
    points_close,   ///< value: the shortest step; with pairs the longer of the two counts
    crosses_itself, ///< `side`; the step from `first` crosses that from `last`; at `where`
    last_
};

inline constexpr std::size_t findings = static_cast<std::size_t>(Finding::last_);

/// A place of a pair is its index in both sides, in `Sides::paired == false` that of A (of B for an
/// entry of side B). A step from i leads to i + 1, from the last point to the first. Neighbouring
/// steps with the same finding are one entry, from point `first` to point `last`; past the end of
/// the outline `last` is 0.
struct Entry {
    Finding kind = Finding::last_;
    Which side = Which::both;
    std::size_t first = 0;
    std::size_t last = 0;
    double value = 0;
    double other = 0;
    double way_A =
        0; ///< length of the way from `first` to `last`, where the finding speaks of steps
    double way_B = 0;
    Point where = {}; ///< where to look: on the entry's side, on A where it speaks of both
};

struct CutReport {
    /// Of each kind the first thousand are kept, the rest counted.
    static constexpr std::size_t kept_of_each = 1000;

    std::vector<Entry> entries = {}; ///< by kind, then by place
    std::array<std::size_t, findings> counts = {};

    [[nodiscard]] std::size_t count(Finding kind) const {
        return counts[static_cast<std::size_t>(kind)];
    }
    [[nodiscard]] std::size_t total() const;
};

/// The finding is one of two outlines that don't belong together as they are paired.
[[nodiscard]] bool speaks_of_pairing(Finding kind);

/// Of the sides as they are given: lines that cross outside the block are legal, so those of the
/// towers say more than is wrong. What repeats is lost from files as they are saved, at the towers.
/// Takes any input; time grows as n log n. Lengths below 0, factors below 1 and what is no number
/// find nothing.
[[nodiscard]] CutReport report_of(const Sides& sides, const Thresholds& thresholds = {});

} // namespace velmora::cutting
