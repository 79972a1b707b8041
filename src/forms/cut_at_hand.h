// What the window ver_corte looks at: two sides, the wire through them, what is worth a look.
#pragma once

#include "cutting/cut_report.h"
#include "cutting/sides.h"
#include "cutting/wire.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace velmora {

/// Where the sides that are looked at lie.
enum class CutStage : unsigned char {
    before, ///< the adjustment: at the faces of the block, not paired
    after,  ///< it, as the workbench holds them: at the towers
    files   ///< it, as they were saved
};

/// Where the outlines of a picture are taken from.
enum class CutPlane : unsigned char { piece, towers };

/// Why the wire can't be shown, or not all of it.
enum class CutLack : unsigned char {
    nothing,
    no_sides,
    not_paired, ///< before the adjustment
    unequal_counts,
    too_few_points,
    no_distance, ///< the wire goes, but where the faces lie is not known
    beyond_numbers
};

struct CutAtHand {
    CutStage stage = CutStage::before;
    cutting::Sides given = {}; ///< as they stand
    cutting::Sides piece = {}; ///< at the faces; as given where they aren't known
    cutting::Wire wire = {};
    bool in_space = false; ///< the wire's planes have depths
    cutting::WireNumbers numbers = {};
    cutting::CutReport report = {};
    CutLack lack = CutLack::nothing;

    [[nodiscard]] bool has_wire() const { return wire.size() > 1; }
    [[nodiscard]] const cutting::Sides& sides(CutPlane plane) const {
        return plane == CutPlane::piece ? piece : given;
    }
    /// Nothing of it can be drawn: no points, or some beyond all numbers.
    [[nodiscard]] bool drawable() const;
};

[[nodiscard]] CutAtHand cut_of(cutting::Sides sides, CutStage stage, const Distances& distances,
                               const cutting::Thresholds& thresholds);

/// What is worth a look at the faces of the foam.
[[nodiscard]] cutting::CutReport report_on(const CutAtHand& cut,
                                           const cutting::Thresholds& thresholds);

/// The sides of the workbench before the adjustment, and after it.
[[nodiscard]] cutting::Sides workbench_sides(CutStage stage);

/// The run that a point of a side lies in, by the sync points up to it.
[[nodiscard]] std::size_t run_of(const cutting::SidePath& side, std::size_t point);

} // namespace velmora
