#include "forms/cut_at_hand.h"

#include "document/state/workbench.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace velmora {

namespace {

using cutting::Plane;
using cutting::Sides;
using cutting::Wire;
using cutting::WireFault;

CutLack lack_of(WireFault fault, CutStage stage) {
    switch (fault) {
    case WireFault::unequal_counts:
        return stage == CutStage::before ? CutLack::not_paired : CutLack::unequal_counts;
    case WireFault::too_few_points:
        return CutLack::too_few_points;
    case WireFault::no_distance:
        return CutLack::no_distance;
    case WireFault::beyond_numbers:
        return CutLack::beyond_numbers;
    case WireFault::none:
        break;
    }
    return CutLack::nothing;
}

bool is_empty(const cutting::SidePath& side) {
    return side.points.empty();
}

/// A side that was never loaded is one zeroed record.
cutting::SidePath loaded_path(const Array<Pto>& points) {
    return points.size() > 1 ? cutting::side_path(points) : cutting::SidePath{};
}

bool has_outline(const cutting::SidePath& side) {
    return side.points.size() > 1;
}

void draw_wire_through(CutAtHand& cut, const Distances& distances) {
    cut.wire = cut.stage == CutStage::before ? wire_of_faces(cut.given, distances)
                                             : wire_of_towers(cut.given, distances);
    cut.lack = has_outline(cut.given.A) && has_outline(cut.given.B)
                   ? lack_of(cut.wire.fault, cut.stage)
                   : CutLack::too_few_points;
    cut.in_space = cut.wire.fault == WireFault::none;
    if (cut.wire.fault == WireFault::no_distance)
        cut.wire = wire_of_roads(cut.given);
    cut.piece = cut.in_space ? sides_at_faces(cut.wire, cut.given) : cut.given;
}

/// The foam melts at its faces; but which points a file loses is seen on what goes into it.
void take_repeats(cutting::CutReport& report, const cutting::CutReport& of_files) {
    constexpr cutting::Finding kind = cutting::Finding::repeat_on_one_side;
    std::erase_if(report.entries, [](const cutting::Entry& entry) { return entry.kind == kind; });
    const auto place = std::ranges::find_if(
        report.entries, [](const cutting::Entry& entry) { return entry.kind > kind; });
    std::vector<cutting::Entry> repeats;
    std::ranges::copy_if(of_files.entries, std::back_inserter(repeats),
                         [](const cutting::Entry& entry) { return entry.kind == kind; });
    report.entries.insert(place, repeats.begin(), repeats.end());
    constexpr auto index = static_cast<std::size_t>(kind);
    report.counts[index] = of_files.counts[index];
}

bool within_reach(const cutting::SidePath& side) {
    constexpr double far = 1e12; // beyond any machine, and where no picture loses its numbers yet
    return std::ranges::all_of(side.points, [](const cutting::Point& point) {
        return std::abs(point.X) <= far && std::abs(point.Y) <= far;
    });
}

} // namespace

bool CutAtHand::drawable() const {
    const bool something = !is_empty(given.A) || !is_empty(given.B);
    return something && lack != CutLack::beyond_numbers && within_reach(given.A) &&
           within_reach(given.B) && within_reach(piece.A) && within_reach(piece.B);
}

CutAtHand cut_of(Sides sides, CutStage stage, const Distances& distances,
                 const cutting::Thresholds& thresholds) {
    CutAtHand cut{.stage = stage, .given = std::move(sides)};
    if (is_empty(cut.given.A) && is_empty(cut.given.B)) {
        cut.lack = CutLack::no_sides;
        return cut;
    }
    draw_wire_through(cut, distances);
    cut.report = report_on(cut, thresholds);
    if (cut.has_wire())
        cut.numbers = numbers_of(cut.wire);
    return cut;
}

cutting::CutReport report_on(const CutAtHand& cut, const cutting::Thresholds& thresholds) {
    cutting::CutReport report = report_of(cut.piece, thresholds);
    if (cut.in_space && cut.stage != CutStage::before)
        take_repeats(report, report_of(cut.given, thresholds));
    return report;
}

Sides workbench_sides(CutStage stage) {
    const WorkbenchState& bench = state::workbench;
    const bool after = stage == CutStage::after;
    return {.A = loaded_path(after ? bench.PtosA2 : bench.PtosA),
            .B = loaded_path(after ? bench.PtosB2 : bench.PtosB),
            .closed = true,
            .paired = after};
}

std::size_t run_of(const cutting::SidePath& side, std::size_t point) {
    return static_cast<std::size_t>(std::ranges::upper_bound(side.sync, point) - side.sync.begin());
}

} // namespace velmora
