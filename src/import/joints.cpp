#include "import/joints.h"

#include "import/loop_search.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace velmora::imports {

namespace {

/// Where more meet, nothing says which goes on into which.
constexpr std::size_t most_meeting = 64;
/// Ends that one end is measured against in each neighbouring cell.
constexpr std::size_t most_neighbours = 32;

struct Choice {
    bool on_loops = false; ///< both lie on one
    double turn = 0;
    EndLook first;
    EndLook second;
    End a = no_end;
    End b = no_end;
};

/// By what lies in the drawing alone, so that the order of the entities has no say.
bool comes_first(const Choice& x, const Choice& y) {
    const auto key = [](const Choice& c) {
        return std::tuple(!c.on_loops, c.turn, c.first.key(), c.second.key());
    };
    return key(x) < key(y);
}

/// The change of direction of one who comes out of one end and goes on into another: 0 straight
/// on. Rounded, so that the last bits of two directions that are equal have no say.
double turn_between(const Point& a, const Point& b) {
    const double turn = std::atan2(std::abs(cross(a, b)), -dot(a, b));
    return std::round(turn * 1e9) / 1e9;
}

Choice choice_of(const PieceEnds& ends, const std::vector<bool>& looping, End a, End b) {
    Choice choice{.on_loops = looping[a / 2] && looping[b / 2],
                  .turn = 0,
                  .first = ends.look(a),
                  .second = ends.look(b),
                  .a = a,
                  .b = b};
    choice.turn = turn_between(choice.first.direction, choice.second.direction);
    if (choice.second.key() < choice.first.key())
        std::swap(choice.first, choice.second);
    return choice;
}

void pair_up(std::vector<Choice>& choices, std::vector<End>& mates) {
    std::ranges::sort(choices, comes_first);
    for (const Choice& choice : choices) {
        if (mates[choice.a] != no_end || mates[choice.b] != no_end)
            continue;
        mates[choice.a] = choice.b;
        mates[choice.b] = choice.a;
    }
}

void decide_junction(const PieceEnds& ends, const std::vector<bool>& looping, std::uint32_t node,
                     std::vector<End>& mates) {
    const auto meeting = ends.meeting(node);
    if (meeting.size() > most_meeting)
        return;
    std::vector<Choice> choices;
    for (std::size_t i = 0; i < meeting.size(); ++i) {
        for (std::size_t k = i + 1; k < meeting.size(); ++k)
            choices.push_back(choice_of(ends, looping, meeting[i], meeting[k]));
    }
    pair_up(choices, mates);
}

void report_junctions(const PieceEnds& ends, const std::vector<std::uint32_t>& junctions,
                      Report& report) {
    std::vector<Point> places;
    for (const std::uint32_t node : junctions) {
        Point lowest = ends.place(ends.meeting(node)[0]);
        for (const End end : ends.meeting(node)) {
            if (lies_before(ends.place(end), lowest))
                lowest = ends.place(end);
        }
        places.push_back(lowest);
    }
    std::ranges::sort(places, lies_before);
    for (const Point& place : places)
        report.add(Fact::junction, 0, {}, place.X, place.Y);
}

} // namespace

std::vector<End> joints(const PieceEnds& ends, Report& report) {
    std::vector<End> mates(ends.count(), no_end);
    std::vector<std::uint32_t> junctions;
    for (std::uint32_t node = 0; node < ends.node_count(); ++node) {
        const auto meeting = ends.meeting(node);
        if (meeting.size() == 2) {
            mates[meeting[0]] = meeting[1];
            mates[meeting[1]] = meeting[0];
        } else if (meeting.size() > 2) {
            junctions.push_back(node);
        }
    }
    if (junctions.empty())
        return mates;
    const std::vector<bool> looping = pieces_on_loops(ends);
    for (const std::uint32_t node : junctions)
        decide_junction(ends, looping, node, mates);
    report_junctions(ends, junctions, report);
    return mates;
}

namespace {

struct Bridge {
    double width = 0;
    EndLook first;
    EndLook second;
    End a = no_end;
    End b = no_end;
};

bool is_nearer(const Bridge& x, const Bridge& y) {
    const auto key = [](const Bridge& c) {
        return std::tuple(c.width, c.first.key(), c.second.key());
    };
    return key(x) < key(y);
}

double run_length(std::span<const Point> points) {
    double sum = 0;
    for (std::size_t i = 1; i < points.size(); ++i)
        sum += distance(points[i - 1], points[i]);
    return sum;
}

/// The loose ends by cells of the gap's size.
class LooseEnds {
  public:
    LooseEnds(const PieceEnds& ends, double gap, const std::vector<End>& mates)
        : ends_(ends), gap_(gap) {
        for (End end = 0; end < ends.count(); ++end) {
            if (mates[end] == no_end && !ends.removed(end))
                loose_.push_back(end);
        }
        for (const End end : loose_)
            box_.add(ends.place(end));
        std::ranges::sort(loose_,
                          [&](End a, End b) { return lies_before(ends.place(a), ends.place(b)); });
        for (const End end : loose_)
            cells_[key(column_of(end), row_of(end))].push_back(end);
    }

    [[nodiscard]] std::vector<Bridge> bridges() const {
        std::vector<Bridge> found;
        for (const End end : loose_) {
            for (int right = -1; right <= 1; ++right) {
                for (int up = -1; up <= 1; ++up)
                    measure(end, right, up, found);
            }
        }
        return found;
    }

  private:
    [[nodiscard]] std::int64_t column_of(End end) const {
        return static_cast<std::int64_t>((ends_.place(end).X - box_.min_X) / gap_);
    }
    [[nodiscard]] std::int64_t row_of(End end) const {
        return static_cast<std::int64_t>((ends_.place(end).Y - box_.min_Y) / gap_);
    }
    [[nodiscard]] static std::uint64_t key(std::int64_t X, std::int64_t Y) {
        return static_cast<std::uint64_t>(X) * 0x9E3779B97F4A7C15U +
               std::rotl(static_cast<std::uint64_t>(Y) * 0xC2B2AE3D27D4EB4FU, 31);
    }

    void measure(End end, int right, int up, std::vector<Bridge>& found) const {
        const Point place = ends_.place(end);
        const auto cell = cells_.find(key(column_of(end) + right, row_of(end) + up));
        if (cell == cells_.end())
            return;
        std::size_t measured = 0;
        for (const End other : cell->second) {
            if (other <= end || ++measured > most_neighbours)
                continue;
            const double width = distance(place, ends_.place(other));
            const bool itself = other_end(end) == other;
            if (width <= gap_ && (!itself || run_length(ends_.points(end)) > 4 * width))
                found.push_back(bridge(width, end, other));
        }
    }

    [[nodiscard]] Bridge bridge(double width, End a, End b) const {
        Bridge bridge{width, ends_.look(a), ends_.look(b), a, b};
        if (bridge.second.key() < bridge.first.key())
            std::swap(bridge.first, bridge.second);
        return bridge;
    }

    const PieceEnds& ends_;
    double gap_;
    Box box_;
    std::vector<End> loose_;
    std::unordered_map<std::uint64_t, std::vector<End>> cells_;
};

} // namespace

void bridge_gaps(const PieceEnds& ends, double gap, std::vector<End>& mates) {
    std::vector<Bridge> bridges = LooseEnds(ends, gap, mates).bridges();
    std::ranges::sort(bridges, is_nearer);
    for (const Bridge& bridge : bridges) {
        if (mates[bridge.a] != no_end || mates[bridge.b] != no_end)
            continue;
        mates[bridge.a] = bridge.b;
        mates[bridge.b] = bridge.a;
    }
}

} // namespace velmora::imports
