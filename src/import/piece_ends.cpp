#include "import/piece_ends.h"

#include "import/end_nodes.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace velmora::imports {

PieceEnds::PieceEnds(const Pieces& pieces, std::vector<Piece> open, double gap)
    : pieces_(pieces), open_(std::move(open)), removed_(open_.size(), false) {
    std::vector<Point> places;
    places.reserve(2 * open_.size());
    for (const Piece& piece : open_) {
        const auto run = pieces_.points(piece);
        places.push_back(run.front());
        places.push_back(run.back());
    }
    nodes_ = nodes_of(places, gap);
    gather();
}

void PieceEnds::gather() {
    std::uint32_t node_total = 0;
    for (const std::uint32_t node : nodes_)
        node_total = std::max(node_total, node + 1);
    starts_.assign(node_total + 1, 0);
    counts_.assign(node_total, 0);
    for (const std::uint32_t node : nodes_)
        ++starts_[node + 1];
    for (std::uint32_t i = 0; i < node_total; ++i)
        starts_[i + 1] += starts_[i];
    meeting_.resize(nodes_.size());
    for (End end = 0; end < nodes_.size(); ++end)
        meeting_[starts_[nodes_[end]] + counts_[nodes_[end]]++] = end;
}

EndLook PieceEnds::look(End end) const {
    const auto run = points(end);
    const Point step = end % 2 == 0 ? run[1] - run[0] : run[run.size() - 2] - run.back();
    const double size = length(step);
    return {.place = place(end),
            .direction = size > 0 ? 1 / size * step : Point{},
            .far = place(other_end(end)),
            .middle = run[(run.size() - 1) / 2] + run[run.size() / 2]};
}

bool PieceEnds::are_doubles(End a, End b, double gap) const {
    const auto first = points(a);
    const auto second = points(b);
    if (first.size() != second.size())
        return false;
    const bool alike = a % 2 == b % 2;
    for (std::size_t i = 0; i < first.size(); ++i) {
        const std::size_t k = alike ? i : second.size() - 1 - i;
        if (distance(first[i], second[k]) > 2 * gap)
            return false;
    }
    return true;
}

std::size_t PieceEnds::remove_doubles(double gap) {
    // Doubles end in the same two nodes. Of the ends in one node those are brought together that
    // lead to the same other one, by the middle of their piece: then doubles are neighbours.
    const auto order = [&](End end) {
        const auto run = points(end);
        const Point middle = run[(run.size() - 1) / 2] + run[run.size() / 2];
        return std::tuple(nodes_[other_end(end)], run.size(), middle.X, middle.Y);
    };
    std::size_t found = 0;
    for (std::uint32_t i = 0; i + 1 < starts_.size(); ++i) {
        const auto ends = std::span(meeting_).subspan(starts_[i], counts_[i]);
        if (ends.size() < 2)
            continue;
        if (ends.size() > 2)
            std::ranges::sort(ends, {}, order);
        End kept = ends[0];
        for (const End end : ends.subspan(1)) {
            const bool is_double = nodes_[other_end(end)] == nodes_[other_end(kept)] &&
                                   !removed(end) && !removed(kept) && end / 2 != kept / 2 &&
                                   are_doubles(kept, end, gap);
            if (is_double) {
                removed_[end / 2] = true;
                ++found;
            } else if (!removed(end)) {
                kept = end;
            }
        }
    }
    if (found == 0)
        return 0;
    for (std::uint32_t i = 0; i + 1 < starts_.size(); ++i) {
        const auto ends = std::span(meeting_).subspan(starts_[i], counts_[i]);
        const auto gone = std::ranges::remove_if(ends, [&](End end) { return removed(end); });
        counts_[i] -= static_cast<std::uint32_t>(gone.size());
    }
    return found;
}

} // namespace velmora::imports
