#include "import/nurbs.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velmora::imports {

namespace {

constexpr std::size_t highest_degree = 15;
constexpr int deepest = 12;
constexpr int pieces_of_span = 4;

struct Weighted {
    double X = 0;
    double Y = 0;
    double weight = 1;
};

Weighted between(const Weighted& a, const Weighted& b, double part) {
    const double rest = 1 - part;
    return {rest * a.X + part * b.X, rest * a.Y + part * b.Y, rest * a.weight + part * b.weight};
}

double distance_to_chord(const Point& p, const Point& a, const Point& b) {
    const Point chord = b - a;
    const double square = dot(chord, chord);
    const double part = square > 0 ? std::clamp(dot(p - a, chord) / square, 0.0, 1.0) : 0;
    return distance(p, a + part * chord);
}

/// One span between knots of a curve: everything that its points depend on, taken together.
class Span {
  public:
    Span(const Nurbs& curve, std::size_t knot) : degree_(curve.degree) {
        for (std::size_t i = 0; i <= degree_; ++i) {
            const std::size_t k = knot - degree_ + i;
            const double weight = curve.weights.empty() ? 1 : curve.weights[k];
            controls_[i] = {weight * curve.points[k].X, weight * curve.points[k].Y, weight};
        }
        for (std::size_t i = 0; i < 2 * degree_; ++i)
            knots_[i] = curve.knots[knot - degree_ + 1 + i];
        start_ = curve.knots[knot];
        end_ = curve.knots[knot + 1];
    }

    [[nodiscard]] double start() const { return start_; }
    [[nodiscard]] double end() const { return end_; }

    /// By de Boor's halving of the control polygon.
    [[nodiscard]] Point at(double t) const {
        std::array<Weighted, highest_degree + 1> d = controls_;
        for (std::size_t r = 1; r <= degree_; ++r) {
            for (std::size_t i = degree_; i >= r; --i) {
                const double low = knots_[i - 1];
                const double high = knots_[i + degree_ - r];
                d[i] = between(d[i - 1], d[i], high > low ? (t - low) / (high - low) : 0);
            }
        }
        const Weighted& point = d[degree_];
        return {point.X / point.weight, point.Y / point.weight};
    }

  private:
    std::size_t degree_;
    std::array<Weighted, highest_degree + 1> controls_;
    std::array<double, 2 * highest_degree> knots_{};
    double start_ = 0;
    double end_ = 0;
};

struct Place {
    double t;
    Point point;
};

class SpanFlattener {
  public:
    SpanFlattener(const Span& span, double tolerance, Pieces& pieces)
        : span_(span), tolerance_(tolerance), pieces_(pieces) {}

    void run() {
        Place from = place(span_.start());
        pieces_.add(from.point);
        for (int i = 1; i <= pieces_of_span; ++i) {
            const double part = static_cast<double>(i) / pieces_of_span;
            const Place to =
                place(i == pieces_of_span ? span_.end()
                                          : span_.start() + part * (span_.end() - span_.start()));
            halve(from, to, deepest);
            from = to;
        }
    }

  private:
    [[nodiscard]] Place place(double t) const { return {t, span_.at(t)}; }

    [[nodiscard]] bool is_off(const Point& point, const Place& from, const Place& to) const {
        return distance_to_chord(point, from.point, to.point) > tolerance_;
    }

    void halve(const Place& from, const Place& to, int left) {
        if (pieces_.full())
            return;
        const Place middle = place((from.t + to.t) / 2);
        const bool flat = !is_off(middle.point, from, to) &&
                          !is_off(span_.at((from.t + middle.t) / 2), from, to) &&
                          !is_off(span_.at((middle.t + to.t) / 2), from, to);
        if (flat || left == 0)
            return pieces_.add(to.point);
        halve(from, middle, left - 1);
        halve(middle, to, left - 1);
    }

    const Span& span_;
    double tolerance_;
    Pieces& pieces_;
};

} // namespace

bool is_whole(const Nurbs& curve) {
    const std::size_t count = curve.points.size();
    const bool fits = curve.degree >= 1 && curve.degree <= highest_degree && count > curve.degree &&
                      curve.knots.size() == count + curve.degree + 1 &&
                      (curve.weights.empty() || curve.weights.size() == count);
    return fits && std::ranges::is_sorted(curve.knots) &&
           std::ranges::all_of(curve.weights, [](double weight) { return weight > 0; }) &&
           curve.knots[curve.degree] < curve.knots[count];
}

void flatten(const Nurbs& curve, double tolerance, Pieces& pieces) {
    pieces.mark_curved();
    for (std::size_t i = curve.degree; i < curve.points.size() && !pieces.full(); ++i) {
        if (curve.knots[i] < curve.knots[i + 1])
            SpanFlattener(Span(curve, i), tolerance, pieces).run();
    }
}

} // namespace velmora::imports
