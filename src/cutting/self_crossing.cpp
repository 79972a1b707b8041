#include "cutting/self_crossing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <set>
#include <tuple>

namespace velmora::cutting {

namespace {

/// A sum that loses nothing: parts that don't overlap, the largest last.
class ExactSum {
  public:
    void add(double value) {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < size_; ++i) {
            const double part = parts_[i];
            const double sum = value + part;
            const double taken = sum - value;
            const double rest = (value - (sum - taken)) + (part - taken);
            value = sum;
            if (rest != 0)
                parts_[kept++] = rest;
        }
        if (value != 0)
            parts_[kept++] = value;
        size_ = kept;
    }
    void add_product(double a, double b) {
        const double product = a * b;
        add(std::fma(a, b, -product));
        add(product);
    }
    [[nodiscard]] int sign() const { return size_ == 0 ? 0 : parts_[size_ - 1] > 0 ? 1 : -1; }

  private:
    std::array<double, 16> parts_{};
    std::size_t size_ = 0;
};

int exact_turn(const Point& a, const Point& b, const Point& c) {
    ExactSum sum;
    sum.add_product(a.X, b.Y);
    sum.add_product(-a.X, c.Y);
    sum.add_product(b.X, c.Y);
    sum.add_product(-b.X, a.Y);
    sum.add_product(c.X, a.Y);
    sum.add_product(-c.X, b.Y);
    return sum.sign();
}

/// 1 where c lies left of the way from a to b, -1 right of it, 0 on its line. What rounding could
/// have turned is calculated exactly.
int turn(const Point& a, const Point& b, const Point& c) {
    constexpr double rounding = 4e-16; // somewhat above three halves of the last bit's half
    const double left = (b.X - a.X) * (c.Y - a.Y);
    const double right = (b.Y - a.Y) * (c.X - a.X);
    const double difference = left - right;
    if (std::abs(difference) > rounding * (std::abs(left) + std::abs(right)))
        return difference > 0 ? 1 : -1;
    if (left == 0 && right == 0)
        return 0;
    return exact_turn(a, b, c);
}

bool same_direction(const Point& from, const Point& a, const Point& b) {
    return turn(from, a, b) == 0 && dot(a - from, b - from) > 0;
}

/// Within the angle that opens counter-clockwise from `a` to `b`, seen from `at`; never on its
/// legs.
bool in_angle(const Point& at, const Point& a, const Point& b, const Point& q) {
    const int opening = turn(at, a, b);
    if (opening > 0)
        return turn(at, a, q) > 0 && turn(at, q, b) > 0;
    if (opening < 0)
        return !(turn(at, b, q) >= 0 && turn(at, q, a) >= 0);
    return turn(at, a, q) > 0;
}

/// A way through a place: where it comes from and where it goes.
struct Passage {
    Point from, to;
};

/// The two ways change sides at the place. What they have in common is none.
bool pass_through(const Point& at, const Passage& one, const Passage& other) {
    for (const Point& a : {one.from, one.to})
        for (const Point& b : {other.from, other.to})
            if (same_direction(at, a, b))
                return false;
    if (same_direction(at, one.from, one.to) || same_direction(at, other.from, other.to))
        return false;
    return in_angle(at, one.from, one.to, other.from) != in_angle(at, one.from, one.to, other.to);
}

/// A step that has a length.
struct Step {
    std::size_t place = 0; ///< of the point it begins at
    Point a, b;            ///< in the order of the way
    Point low, high;       ///< the same from left to right
};

std::vector<Step> steps_of(std::span<const Point> points, bool closed) {
    std::vector<Step> steps;
    const std::size_t count = points.size();
    steps.reserve(count);
    for (std::size_t i = 0; i + (closed ? 0 : 1) < count; ++i) {
        const Point& a = points[i];
        const Point& b = points[i + 1 < count ? i + 1 : 0];
        if (a == b)
            continue;
        const bool forward = lies_before(a, b);
        steps.push_back({i, a, b, forward ? a : b, forward ? b : a});
    }
    return steps;
}

using Number = std::uint32_t;

/// Orders the steps that the sweep line cuts, from below. Steps that cross aren't both among them.
class Below {
  public:
    explicit Below(const std::vector<Step>& steps) : steps_(&steps) {}

    bool operator()(Number s, Number t) const {
        if (s == t)
            return false;
        const Step& one = (*steps_)[s];
        const Step& other = (*steps_)[t];
        const int side = lies_before(one.low, other.low) ? height(other, one) : -height(one, other);
        return side != 0 ? side > 0 : s < t;
    }

  private:
    /// 1 where `later` lies above `earlier`, which begins first.
    static int height(const Step& later, const Step& earlier) {
        const int at_start = turn(earlier.low, earlier.high, later.low);
        return at_start != 0 ? at_start : turn(earlier.low, earlier.high, later.high);
    }

    const std::vector<Step>* steps_;
};

/// A line from left to right over all steps. Of two that cross, the one that ends first is taken
/// off once the crossing is known: what is left keeps its order, and a step is taken off once.
class Sweep {
  public:
    Sweep(std::span<const Point> points, bool closed)
        : steps_(steps_of(points, closed)), closed_(closed), line_(Below(steps_)),
          places_(steps_.size(), line_.end()), told_(steps_.size(), false) {}

    std::vector<Crossing> run() {
        if (steps_.size() < 3)
            return {};
        look_at_repeated_places();
        for (const Event& event : events())
            take(event);
        std::ranges::sort(found_, {}, [](const Crossing& crossing) {
            return std::tuple(crossing.first, crossing.second);
        });
        return std::move(found_);
    }

  private:
    using Line = std::set<Number, Below>;

    struct Event {
        Point at;
        bool begins;
        Number step;
    };

    [[nodiscard]] std::vector<Event> events() const {
        std::vector<Event> all;
        all.reserve(2 * steps_.size());
        for (Number i = 0; i < steps_.size(); ++i) {
            all.push_back({steps_[i].low, true, i});
            all.push_back({steps_[i].high, false, i});
        }
        std::ranges::sort(all, {}, [](const Event& event) {
            return std::tuple(event.at.X, event.at.Y, event.begins, event.step);
        });
        return all;
    }

    void take(const Event& event) {
        if (event.begins)
            return begin(event.step);
        if (places_[event.step] != line_.end())
            remove(event.step);
    }

    void begin(Number step) {
        const auto at = line_.insert(step).first;
        places_[step] = at;
        if (at != line_.begin())
            look_between(std::prev(at));
        if (places_[step] != line_.end())
            look_between(places_[step]);
    }

    /// What stood below and above it are neighbours then.
    void remove(Number step) {
        const auto above = line_.erase(places_[step]);
        places_[step] = line_.end();
        if (above != line_.begin())
            look_between(std::prev(above));
    }

    /// The step at `below` and the one above it, and those that become neighbours by it.
    void look_between(Line::iterator below) {
        while (true) {
            const auto above = std::next(below);
            if (above == line_.end() || !look_at(*below, *above))
                return;
            const bool below_goes = lies_before(steps_[*below].high, steps_[*above].high);
            const Number gone = below_goes ? *below : *above;
            places_[gone] = line_.end();
            if (!below_goes) {
                line_.erase(above);
                continue;
            }
            const bool lowest = below == line_.begin();
            const auto next = line_.erase(below);
            if (lowest)
                return;
            below = std::prev(next);
        }
    }

    [[nodiscard]] bool follow(Number s, Number t) const {
        const Number last = static_cast<Number>(steps_.size() - 1);
        const auto [low, high] = std::minmax(s, t);
        return high - low == 1 || (closed_ && low == 0 && high == last);
    }

    /// True where one has to go: they cross within both.
    bool look_at(Number s, Number t) {
        if (follow(s, t))
            return false;
        const Step& one = steps_[s];
        const Step& other = steps_[t];
        const int one_a = turn(other.a, other.b, one.a);
        const int one_b = turn(other.a, other.b, one.b);
        const int other_a = turn(one.a, one.b, other.a);
        const int other_b = turn(one.a, one.b, other.b);
        if (one_a * one_b < 0 && other_a * other_b < 0) {
            add(s, t, crossing_of(one, other));
            return true;
        }
        if (one_a * one_b == 0 && other_a * other_b < 0)
            look_at_corner(s, t, one_a == 0, one_b == 0);
        if (other_a * other_b == 0 && one_a * one_b < 0)
            look_at_corner(t, s, other_a == 0, other_b == 0);
        return false;
    }

    /// A corner of the way, at the start or the end of step `s`, lies within step `t`.
    void look_at_corner(Number s, Number t, bool at_start, bool at_end) {
        if (at_start == at_end || (!closed_ && s == (at_start ? 0 : steps_.size() - 1)))
            return;
        const auto count = static_cast<Number>(steps_.size());
        const Number corner = at_start ? s : (s + 1) % count;
        const Number before = (corner + count - 1) % count;
        const Step& wall = steps_[t];
        if (turn(wall.a, wall.b, steps_[before].a) * turn(wall.a, wall.b, steps_[corner].b) < 0)
            add_corner(corner, t);
    }

    void add_corner(Number corner, Number step) {
        if (told_[corner])
            return;
        told_[corner] = true;
        add(corner, step, steps_[corner].a);
    }

    void add(Number s, Number t, const Point& where) {
        const auto [first, second] = std::minmax(steps_[s].place, steps_[t].place);
        found_.push_back({first, second, where});
    }

    static Point crossing_of(const Step& one, const Step& other) {
        const Point way = one.b - one.a;
        const Point wall = other.b - other.a;
        const double slope = cross(way, wall);
        if (slope == 0)
            return one.a;
        const double part = cross(other.a - one.a, wall) / slope;
        return one.a + std::clamp(part, 0.0, 1.0) * way;
    }

    /// Corners at one and the same place. Of very many there the first few are looked at.
    void look_at_repeated_places() {
        constexpr std::size_t looked_at = 8;
        std::vector<Number> corners;
        for (Number i = closed_ ? 0 : 1; i < steps_.size(); ++i)
            corners.push_back(i);
        const auto place = [this](Number i) {
            return std::tuple(steps_[i].a.X, steps_[i].a.Y, i);
        };
        std::ranges::sort(corners, {}, place);
        for (std::size_t i = 0; i < corners.size(); ++i)
            for (std::size_t j = i + 1; j < std::min(corners.size(), i + looked_at); ++j) {
                if (steps_[corners[i]].a != steps_[corners[j]].a)
                    break;
                look_at_corners(corners[i], corners[j]);
            }
    }

    void look_at_corners(Number one, Number other) {
        if (pass_through(steps_[one].a, passage(one), passage(other)))
            add_corner(one, other);
    }

    [[nodiscard]] Passage passage(Number corner) const {
        const std::size_t before = (corner + steps_.size() - 1) % steps_.size();
        return {steps_[before].a, steps_[corner].b};
    }

    std::vector<Step> steps_;
    bool closed_;
    Line line_;
    std::vector<Line::iterator> places_; ///< the end for a step that isn't cut
    std::vector<bool> told_;             ///< of the corner at the step's start
    std::vector<Crossing> found_;
};

} // namespace

std::vector<Crossing> self_crossings(std::span<const Point> points, bool closed) {
    return Sweep(points, closed).run();
}

} // namespace velmora::cutting
