#include "import/chains.h"

#include "import/joints.h"
#include "import/piece_ends.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace velmora::imports {

namespace {

constexpr double gap_by_itself = 1e-6;
/// Below this share of the drawing's size two places can't be told apart in f64.
constexpr double finest_gap = 1e-12;

double run_length(std::span<const Point> points) {
    double sum = 0;
    for (std::size_t i = 1; i < points.size(); ++i)
        sum += distance(points[i - 1], points[i]);
    return sum;
}

bool reads_before(const std::vector<Point>& a, const std::vector<Point>& b) {
    return std::ranges::lexicographical_compare(a, b, lies_before);
}

/// From its leftmost point; where it passes there more than once, on the way that reads first.
std::vector<Point> from_the_left(const std::vector<Point>& points) {
    constexpr std::size_t most_tried = 16;
    const Point leftmost = *std::ranges::min_element(points, lies_before);
    std::vector<Point> best;
    std::size_t tried = 0;
    for (std::size_t i = 0; i < points.size() && tried < most_tried; ++i) {
        if (points[i] != leftmost)
            continue;
        ++tried;
        std::vector<Point> turned;
        turned.reserve(points.size());
        const auto middle = points.begin() + static_cast<std::ptrdiff_t>(i);
        turned.insert(turned.end(), middle, points.end());
        turned.insert(turned.end(), points.begin(), middle);
        if (best.empty() || reads_before(turned, best))
            best = std::move(turned);
    }
    return best;
}

/// A closed chain whose area is the difference of two directions' last digits has no direction.
bool has_direction(const std::vector<Point>& points) {
    const Box box = box_of(points);
    return std::abs(twice_area(points)) > 1e-9 * box.size() * box.size();
}

void settle_closed(std::vector<Point>& points) {
    if (points.size() > 1 && points.front() == points.back())
        points.pop_back();
    if (has_direction(points)) {
        if (twice_area(points) < 0)
            std::ranges::reverse(points);
        points = from_the_left(points);
        return;
    }
    std::vector<Point> forwards = from_the_left(points);
    std::ranges::reverse(points);
    std::vector<Point> backwards = from_the_left(points);
    points = reads_before(backwards, forwards) ? std::move(backwards) : std::move(forwards);
}

/// One way of writing each chain, whatever way it was drawn.
void settle(Chain& chain) {
    if (chain.closed)
        return settle_closed(chain.points);
    std::vector<Point> backwards(chain.points.rbegin(), chain.points.rend());
    if (reads_before(backwards, chain.points))
        chain.points = std::move(backwards);
}

class Chainer {
  public:
    Chainer(const Pieces& pieces, const ChainChoices& choices,
            const std::vector<std::string>& names, Report& report)
        : pieces_(pieces), choices_(choices), names_(names), report_(report) {
        Box box;
        for (const Piece& piece : pieces.all()) {
            for (const Point& point : pieces.points(piece))
                box.add(point);
        }
        const double by_itself = gap_by_itself * box.size();
        gap_ = choices.gap.value_or(by_itself);
        meeting_gap_ = std::max(std::min(gap_, by_itself), finest_gap * box.size());
    }

    std::vector<Chain> run() {
        std::vector<Piece> open = sort_out();
        remove_closed_doubles();
        for (const std::uint32_t i : closed_)
            take_closed(pieces_.all()[i]);
        if (!open.empty())
            take_open(PieceEnds(pieces_, std::move(open), meeting_gap_));
        say_counts();
        settle_all();
        return std::move(chains_);
    }

  private:
    /// The open pieces; the closed ones go to `closed_`, those without length nowhere.
    std::vector<Piece> sort_out() {
        std::vector<Piece> open;
        open.reserve(pieces_.all().size());
        for (std::uint32_t i = 0; i < pieces_.all().size(); ++i) {
            const Piece& piece = pieces_.all()[i];
            const auto points = pieces_.points(piece);
            const bool back = distance(points.front(), points.back()) <= meeting_gap_;
            if (back && box_of(points).size() <= meeting_gap_)
                ++zero_lengths_;
            else if (piece.closed || back)
                closed_.push_back(i);
            else
                open.push_back(piece);
        }
        return open;
    }

    /// What two closed pieces have in common wherever they start and whichever way they run.
    struct Look {
        Box box;
        double length = 0;
        double area = 0;
        std::uint32_t piece = 0;
    };

    [[nodiscard]] Look look_of(std::uint32_t i) const {
        const Piece& piece = pieces_.all()[i];
        const auto points = pieces_.points(piece);
        return {box_of(points), run_length(points) + distance(points.back(), points.front()),
                std::abs(twice_area(points)), i};
    }

    [[nodiscard]] bool look_alike(const Look& a, const Look& b) const {
        const double near = 2 * meeting_gap_;
        const auto differ = [&](double x, double y) {
            return std::abs(x - y) > near;
        };
        return !differ(a.box.min_X, b.box.min_X) && !differ(a.box.min_Y, b.box.min_Y) &&
               !differ(a.box.max_X, b.box.max_X) && !differ(a.box.max_Y, b.box.max_Y) &&
               std::abs(a.length - b.length) <= 1e-6 * a.length &&
               std::abs(a.area - b.area) <= 1e-6 * a.length * a.length;
    }

    void remove_closed_doubles() {
        if (!choices_.remove_doubles || closed_.size() < 2)
            return;
        std::vector<Look> looks;
        for (const std::uint32_t i : closed_)
            looks.push_back(look_of(i));
        std::ranges::stable_sort(looks, {}, [](const Look& look) {
            return std::tuple(look.box.min_X, look.box.min_Y, look.length);
        });
        closed_.clear();
        const Look* kept = nullptr;
        for (const Look& look : looks) {
            if (kept != nullptr && look_alike(*kept, look)) {
                ++doubles_;
                continue;
            }
            kept = &look;
            closed_.push_back(look.piece);
        }
    }

    void take_closed(const Piece& piece) {
        const auto points = pieces_.points(piece);
        chains_.push_back({.points = {points.begin(), points.end()},
                           .closed = true,
                           .name = name_of(piece),
                           .line = piece.line});
        std::vector<Point>& taken = chains_.back().points;
        if (taken.size() > 1 && distance(taken.front(), taken.back()) <= meeting_gap_)
            taken.pop_back();
    }

    [[nodiscard]] std::string name_of(const Piece& piece) const {
        return piece.layer < names_.size() ? names_[piece.layer] : std::string();
    }

    void take_open(PieceEnds ends) {
        if (choices_.remove_doubles)
            doubles_ += ends.remove_doubles(meeting_gap_);
        std::vector<End> mates = joints(ends, report_);
        if (gap_ > meeting_gap_)
            bridge_gaps(ends, gap_, mates);
        taken_.assign(ends.count() / 2, false);
        for (End end = 0; end < ends.count(); ++end) {
            if (mates[end] == no_end && !ends.removed(end) && !taken_[end / 2])
                walk(ends, mates, end);
        }
        for (End end = 0; end < ends.count(); end += 2) {
            if (!ends.removed(end) && !taken_[end / 2])
                walk(ends, mates, end);
        }
    }

    /// From an end through its piece and on, until nothing follows or the start comes again.
    void walk(const PieceEnds& ends, const std::vector<End>& mates, End start) {
        Chain chain;
        const Piece* first = nullptr;
        End end = start;
        while (end != no_end && !taken_[end / 2]) {
            taken_[end / 2] = true;
            const Piece& piece = ends.piece(end);
            if (first == nullptr || piece.line < first->line)
                first = &piece;
            append(chain.points, ends.points(end), end % 2 == 1);
            end = mates[other_end(end)];
        }
        chain.closed = end != no_end;
        if (chain.closed)
            close(chain.points);
        chain.name = name_of(*first);
        chain.line = first->line;
        chains_.push_back(std::move(chain));
    }

    void append(std::vector<Point>& points, std::span<const Point> run, bool backwards) {
        const Point& next = backwards ? run.back() : run.front();
        if (!points.empty() && meet(points.back(), next)) {
            points.back() = std::min(points.back(), next, lies_before);
            run = backwards ? run.first(run.size() - 1) : run.subspan(1);
        }
        if (backwards)
            points.insert(points.end(), run.rbegin(), run.rend());
        else
            points.insert(points.end(), run.begin(), run.end());
    }

    void close(std::vector<Point>& points) {
        if (points.size() < 2 || !meet(points.back(), points.front()))
            return;
        points.front() = std::min(points.back(), points.front(), lies_before);
        points.pop_back();
    }

    /// Whether two ends count as one point; a wider gap is kept as a straight line.
    bool meet(const Point& a, const Point& b) {
        const double width = distance(a, b);
        if (width == 0)
            return true;
        ++gaps_;
        largest_gap_ = std::max(largest_gap_, width);
        return width <= 2 * meeting_gap_;
    }

    void say_counts() {
        if (zero_lengths_ > 0)
            report_.add(Fact::zero_lengths, 0, {}, static_cast<double>(zero_lengths_));
        if (doubles_ > 0)
            report_.add(Fact::doubles, 0, {}, static_cast<double>(doubles_));
        if (gaps_ > 0)
            report_.add(Fact::largest_gap, 0, {}, largest_gap_, static_cast<double>(gaps_));
    }

    void settle_all() {
        struct Key {
            bool open;
            double shortness;
            std::size_t chain;
        };
        std::vector<Key> keys;
        for (Chain& chain : chains_) {
            settle(chain);
            keys.push_back({!chain.closed, -run_length(chain.points),
                            static_cast<std::size_t>(&chain - chains_.data())});
        }
        std::ranges::sort(keys, [&](const Key& a, const Key& b) {
            if (a.open != b.open || a.shortness != b.shortness)
                return std::tuple(a.open, a.shortness) < std::tuple(b.open, b.shortness);
            return reads_before(chains_[a.chain].points, chains_[b.chain].points);
        });
        std::vector<Chain> sorted;
        sorted.reserve(chains_.size());
        for (const Key& key : keys)
            sorted.push_back(std::move(chains_[key.chain]));
        chains_ = std::move(sorted);
    }

    const Pieces& pieces_;
    const ChainChoices& choices_;
    const std::vector<std::string>& names_;
    Report& report_;
    double gap_ = 0;
    double meeting_gap_ = 0;
    std::vector<std::uint32_t> closed_;
    std::vector<bool> taken_; ///< by the place of a piece among the open ones
    std::vector<Chain> chains_;
    std::size_t zero_lengths_ = 0;
    std::size_t doubles_ = 0;
    std::size_t gaps_ = 0;
    double largest_gap_ = 0;
};

} // namespace

std::vector<Chain> chained(const Pieces& pieces, const ChainChoices& choices,
                           const std::vector<std::string>& names, Report& report) {
    return Chainer(pieces, choices, names, report).run();
}

} // namespace velmora::imports
