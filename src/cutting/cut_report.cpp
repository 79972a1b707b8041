#include "cutting/cut_report.h"

#include "cutting/self_crossing.h"
#include "import/number_text.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>
#include <optional>
#include <span>
#include <tuple>

namespace velmora::cutting {

namespace {

/// The larger over the smaller; infinite where that is nothing but rounding.
double factor_between(double one, double other) {
    const double smaller = std::min(one, other);
    const double larger = std::max(one, other);
    return smaller > 1e-9 * larger ? larger / smaller : std::numeric_limits<double>::infinity();
}

/// A limit below 1 is none that a factor could have.
bool passes(double factor, double limit) {
    return limit >= 1 && factor > limit;
}

/// The steps of one side with their lengths, and the way up to each.
struct Steps {
    std::vector<double> lengths;
    std::vector<double> along; ///< one more: the whole at the end

    Steps(std::span<const Point> points, bool closed) {
        const std::size_t count = points.size() - (closed ? 0 : 1);
        lengths.reserve(count);
        for (std::size_t i = 0; i < count; ++i)
            lengths.push_back(distance(points[i], points[i + 1 < points.size() ? i + 1 : 0]));
        along.assign(1, 0);
        along.reserve(count + 1);
        for (const double length : lengths)
            along.push_back(along.back() + length);
    }
    [[nodiscard]] std::size_t size() const { return lengths.size(); }
    /// From one point to a later one, over the outline's end where that lies before it.
    [[nodiscard]] double way(std::size_t from, std::size_t to) const {
        const double way = along[to] - along[from];
        return to > from ? way : way + along.back();
    }
};

/// Steps of a pair taken together.
struct Stride {
    std::size_t first = 0;
    std::size_t last = 0; ///< the number of points where it ends on the first one
    double way_A = 0;
    double way_B = 0;
};

class Reporter {
  public:
    Reporter(const Sides& sides, const Thresholds& thresholds)
        : sides_(sides), limits_(thresholds) {}

    CutReport report() {
        const bool A = look_at_points(Which::A);
        const bool B = look_at_points(Which::B);
        look_at_totals();
        if (A && B)
            look_at_both();
        look_at_each(A, B);
        std::ranges::stable_sort(report_.entries, {}, [](const Entry& entry) {
            return std::tuple(entry.kind, entry.first);
        });
        return std::move(report_);
    }

  private:
    [[nodiscard]] const SidePath& path(Which side) const {
        return side == Which::B ? sides_.B : sides_.A;
    }

    void add(Entry entry) {
        const std::vector<Point>& points = path(entry.side).points;
        if (entry.last >= points.size() && !points.empty())
            entry.last -= points.size();
        if (entry.kind != Finding::crosses_itself && entry.first < points.size())
            entry.where = points[entry.first];
        if (++report_.counts[static_cast<std::size_t>(entry.kind)] <= CutReport::kept_of_each)
            report_.entries.push_back(entry);
    }

    /// Entries of neighbouring steps become one.
    template <class Join>
    void join(std::optional<Entry>& open, const Entry& next, Join&& join_values) {
        if (!open || open->last != next.first || open->side != next.side) {
            flush(open);
            open = next;
            return;
        }
        open->last = next.last;
        open->value = join_values(open->value, next.value);
        open->way_A += next.way_A;
        open->way_B += next.way_B;
    }
    void flush(std::optional<Entry>& open) {
        if (open)
            add(*open);
        open.reset();
    }

    /// False where there are no steps to look at.
    bool look_at_points(Which side) {
        const std::vector<Point>& points = path(side).points;
        const auto beyond = std::ranges::find_if_not(points, [](const Point& point) {
            return std::abs(point.X) <= imports::largest_number &&
                   std::abs(point.Y) <= imports::largest_number;
        });
        if (beyond != points.end()) {
            const auto place = static_cast<std::size_t>(beyond - points.begin());
            add({.kind = Finding::beyond_numbers, .side = side, .first = place, .last = place});
            return false;
        }
        if (points.size() < 2) {
            add({.kind = Finding::too_few_points,
                 .side = side,
                 .value = static_cast<double>(points.size())});
            return false;
        }
        const bool moves = std::ranges::any_of(
            points, [&](const Point& point) { return point != points.front(); });
        if (!moves)
            add({.kind = Finding::all_points_equal, .side = side});
        return moves;
    }

    void look_at_totals() {
        compare(Finding::counts_differ, sides_.paired, sides_.A.points.size(),
                sides_.B.points.size());
        compare(Finding::sync_totals_differ, true, sides_.A.sync.size(), sides_.B.sync.size());
        if (are_paired(sides_))
            return look_at_sync_places();
        for (const Which side : {Which::A, Which::B})
            if (path(side).sync.empty())
                add({.kind = Finding::no_sync_points, .side = side});
    }

    void compare(Finding kind, bool asked, std::size_t A, std::size_t B) {
        if (asked && A != B)
            add({.kind = kind, .value = static_cast<double>(A), .other = static_cast<double>(B)});
    }

    void look_at_sync_places() {
        const std::size_t count = std::min(sides_.A.sync.size(), sides_.B.sync.size());
        for (std::size_t n = 0; n < count; ++n) {
            const std::size_t A = sides_.A.sync[n];
            const std::size_t B = sides_.B.sync[n];
            if (A != B)
                add({.kind = Finding::sync_apart,
                     .first = A,
                     .last = A,
                     .value = static_cast<double>(B)});
        }
    }

    void look_at_both() {
        const Steps A(sides_.A.points, sides_.closed);
        const Steps B(sides_.B.points, sides_.closed);
        look_at_turns();
        look_at_runs(A, B);
        if (!are_paired(sides_))
            return;
        look_at_still(Which::A, A, B);
        look_at_still(Which::B, B, A);
        const std::vector<Stride> strides = strides_of(A, B);
        look_at_factors(strides);
        look_at_lines(strides);
        look_at_repeats(A, B);
    }

    /// 1 counter-clockwise, -1 clockwise, 0 where the outline encloses next to nothing.
    static int turn_of(const std::vector<Point>& points) {
        const Box box = box_of(points);
        const double area = imports::twice_area(points);
        if (std::abs(area) <= 1e-6 * box.size() * box.size())
            return 0;
        return area > 0 ? 1 : -1;
    }

    void look_at_turns() {
        if (sides_.closed && turn_of(sides_.A.points) * turn_of(sides_.B.points) < 0)
            add({.kind = Finding::opposite_turn});
    }

    void look_at_runs(const Steps& A, const Steps& B) {
        const std::vector<std::size_t>& sync = sides_.A.sync;
        if (sync.size() != sides_.B.sync.size() || sync.empty() ||
            sync.back() >= sides_.A.points.size() || sides_.B.sync.back() >= sides_.B.points.size())
            return;
        const std::size_t runs = sync.size() - (sides_.closed ? 0 : 1);
        for (std::size_t n = 0; n < runs; ++n) {
            const std::size_t next = n + 1 < sync.size() ? n + 1 : 0;
            const double way_A = A.way(sync[n], sync[next]);
            const double way_B = B.way(sides_.B.sync[n], sides_.B.sync[next]);
            const double factor = factor_between(way_A / A.along.back(), way_B / B.along.back());
            if (passes(factor, limits_.run_factor) && way_A + way_B > limits_.least_step)
                add({.kind = Finding::runs_differ,
                     .first = sync[n],
                     .last = sync[next],
                     .value = factor,
                     .way_A = way_A,
                     .way_B = way_B});
        }
    }

    /// The longest stretches that `own` needs less than the length of standing still for.
    void look_at_still(Which side, const Steps& own, const Steps& other) {
        std::size_t to = 0;
        for (std::size_t from = 0; from < own.size();) {
            to = std::max(to, from);
            while (to < own.size() && own.along[to + 1] - own.along[from] < limits_.still)
                ++to;
            const double meanwhile = other.along[to] - other.along[from];
            if (to == from || !(meanwhile > limits_.still_while && limits_.still_while >= 0)) {
                ++from;
                continue;
            }
            const double moved = own.along[to] - own.along[from];
            add({.kind = Finding::stands_still,
                 .side = side,
                 .first = from,
                 .last = to,
                 .value = meanwhile,
                 .way_A = side == Which::A ? moved : meanwhile,
                 .way_B = side == Which::A ? meanwhile : moved});
            from = to;
        }
    }

    /// Each as long as the steps that are compared have to be; what is left at the end belongs to
    /// the last one.
    [[nodiscard]] std::vector<Stride> strides_of(const Steps& A, const Steps& B) const {
        std::vector<Stride> strides;
        Stride open;
        for (std::size_t i = 0; i < A.size(); ++i) {
            open.last = i + 1;
            open.way_A += A.lengths[i];
            open.way_B += B.lengths[i];
            if (std::max(open.way_A, open.way_B) < limits_.least_step)
                continue;
            strides.push_back(open);
            open = {.first = i + 1, .last = i + 1};
        }
        if (!strides.empty()) {
            strides.back().last = open.last;
            strides.back().way_A += open.way_A;
            strides.back().way_B += open.way_B;
        }
        return strides;
    }

    void look_at_factors(const std::vector<Stride>& strides) {
        std::optional<Entry> open;
        for (const Stride& stride : strides) {
            const double factor = factor_between(stride.way_A, stride.way_B);
            if (stride.way_A + stride.way_B == 0 || !passes(factor, limits_.factor))
                continue;
            join(open,
                 {.kind = Finding::steps_differ,
                  .side = stride.way_A < stride.way_B ? Which::A : Which::B,
                  .first = stride.first,
                  .last = stride.last,
                  .value = factor,
                  .way_A = stride.way_A,
                  .way_B = stride.way_B},
                 [](double a, double b) { return std::max(a, b); });
        }
        flush(open);
    }

    [[nodiscard]] static Point move_of(const SidePath& side, const Stride& stride) {
        const std::size_t last = stride.last < side.points.size() ? stride.last : 0;
        return side.points[last] - side.points[stride.first];
    }

    /// Lines cross between the sides where a step turns by more than a right angle from one to the
    /// other: seen along the wire, the second line passes the first one.
    void look_at_lines(const std::vector<Stride>& strides) {
        std::optional<Entry> open;
        for (const Stride& stride : strides) {
            const Point A = move_of(sides_.A, stride);
            const Point B = move_of(sides_.B, stride);
            const double longer = std::max(imports::length(A), imports::length(B));
            const double back = longer > 0 ? -dot(A, B) / longer : 0;
            if (!(back > limits_.least_back && limits_.least_back >= 0))
                continue;
            const Point turned = A - B;
            join(open,
                 {.kind = Finding::lines_cross,
                  .first = stride.first,
                  .last = stride.last,
                  .value = back,
                  .other = dot(A, turned) / dot(turned, turned),
                  .way_A = stride.way_A,
                  .way_B = stride.way_B},
                 std::plus<>());
        }
        flush(open);
    }

    /// What is written to a file leaves out a point like the one before it, on that side alone; the
    /// closing point it writes always.
    void look_at_repeats(const Steps& A, const Steps& B) {
        std::optional<Entry> open;
        const std::size_t count = std::min(A.size(), sides_.A.points.size() - 1);
        for (std::size_t i = 0; i < count; ++i) {
            const bool repeats_A = sides_.A.points[i] == sides_.A.points[i + 1];
            const bool repeats_B = sides_.B.points[i] == sides_.B.points[i + 1];
            if (repeats_A == repeats_B)
                continue;
            join(open,
                 {.kind = Finding::repeat_on_one_side,
                  .side = repeats_A ? Which::A : Which::B,
                  .first = i,
                  .last = i + 1,
                  .value = A.lengths[i] + B.lengths[i],
                  .way_A = A.lengths[i],
                  .way_B = B.lengths[i]},
                 std::plus<>());
        }
        flush(open);
    }

    void look_at_each(bool A, bool B) {
        if (A && B && are_paired(sides_)) {
            look_at_close_pairs();
        } else {
            if (A)
                look_at_close_points(Which::A);
            if (B)
                look_at_close_points(Which::B);
        }
        if (A)
            look_at_crossings(Which::A);
        if (B)
            look_at_crossings(Which::B);
    }

    /// A cutter's four axes run one line together: it is short where both sides are. Where nothing
    /// moves at all there is no line.
    void look_at_close_pairs() {
        const Steps A(sides_.A.points, sides_.closed);
        const Steps B(sides_.B.points, sides_.closed);
        look_at_close(Which::both, A.size(), false,
                      [&](std::size_t i) { return std::tuple(A.lengths[i], B.lengths[i]); });
    }

    void look_at_close_points(Which side) {
        const Steps own(path(side).points, sides_.closed);
        look_at_close(side, own.size(), true, [&](std::size_t i) {
            const double length = own.lengths[i];
            return side == Which::A ? std::tuple(length, 0.0) : std::tuple(0.0, length);
        });
    }

    template <class Lengths>
    void look_at_close(Which side, std::size_t count, bool repeats_too, Lengths&& lengths) {
        std::optional<Entry> open;
        for (std::size_t i = 0; i < count; ++i) {
            const auto [A, B] = lengths(i);
            const double longer = std::max(A, B);
            if (!(longer < limits_.close) || (longer == 0 && !repeats_too))
                continue;
            join(open,
                 {.kind = Finding::points_close,
                  .side = side,
                  .first = i,
                  .last = i + 1,
                  .value = longer,
                  .way_A = A,
                  .way_B = B},
                 [](double a, double b) { return std::min(a, b); });
        }
        flush(open);
    }

    void look_at_crossings(Which side) {
        for (const Crossing& crossing : self_crossings(path(side).points, sides_.closed))
            add({.kind = Finding::crosses_itself,
                 .side = side,
                 .first = crossing.first,
                 .last = crossing.second,
                 .where = crossing.where});
    }

    const Sides& sides_;
    const Thresholds& limits_;
    CutReport report_;
};

} // namespace

std::size_t CutReport::total() const {
    return std::accumulate(counts.begin(), counts.end(), std::size_t{0});
}

bool speaks_of_pairing(Finding kind) {
    return kind >= Finding::counts_differ && kind <= Finding::repeat_on_one_side;
}

CutReport report_of(const Sides& sides, const Thresholds& thresholds) {
    return Reporter(sides, thresholds).report();
}

} // namespace velmora::cutting
