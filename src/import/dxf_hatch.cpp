#include "import/dxf_hatch.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>
#include <utility>

namespace velmora::imports {

namespace {

constexpr double full_turn = 2 * std::numbers::pi;
constexpr double nothing = 1e-9;

enum class EdgeKind : int { line = 1, arc = 2, ellipse = 3, spline = 4 };

double radians(double degrees) {
    return degrees * (std::numbers::pi / 180);
}

double sweep_between(double start, double end) {
    const double sweep = std::fmod(end - start, full_turn);
    return sweep <= nothing ? sweep + full_turn : sweep;
}

/// The angle of a place on an ellipse as the parameter of its curve.
double parameter_of(double angle, double ratio) {
    const double turns = std::floor((angle + std::numbers::pi) / full_turn);
    const double within = angle - turns * full_turn;
    return std::atan2(std::sin(within) / ratio, std::cos(within)) + turns * full_turn;
}

class LoopReader {
  public:
    explicit LoopReader(const DxfEntity& entity)
        : values_(entity.ordered()), plane_(plane_map(entity)) {}

    std::vector<DxfShape> read() {
        std::vector<DxfShape> loops;
        skip_to(91);
        const int count = whole(91);
        for (int i = 0; i < count && skip_to(92); ++i) {
            if (auto loop = read_loop())
                loops.push_back(std::move(*loop));
        }
        return loops;
    }

  private:
    using Values = std::vector<DxfEntity::Value>;

    [[nodiscard]] bool at(int code) const {
        return next_ < values_.size() && values_[next_].code == code;
    }
    bool skip_to(int code) {
        while (next_ < values_.size() && values_[next_].code != code)
            ++next_;
        return next_ < values_.size();
    }
    /// The number that stands next under a code; `missing` where another does.
    double real(int code, double missing = 0) {
        return at(code) ? values_[next_++].number : missing;
    }
    int whole(int code, int missing = 0) {
        const double value = real(code, missing);
        return std::abs(value) < std::numeric_limits<int>::max() ? static_cast<int>(value)
                                                                 : missing;
    }
    std::optional<Point> place(int code) {
        if (!at(code))
            return {};
        const double X = real(code);
        return Point{X, real(code + 10)};
    }

    std::optional<DxfShape> read_loop() {
        constexpr int polyline = 2;
        constexpr int text_box = 8;
        const int flags = whole(92);
        auto loop = (flags & polyline) != 0 ? read_polyline() : read_edges();
        if ((flags & text_box) != 0)
            return {};
        return loop;
    }

    std::optional<DxfShape> read_polyline() {
        (void)whole(72);
        (void)whole(73, 1);
        DxfPath path{.vertices = {}, .plane = plane_, .closed = true};
        const int count = whole(93);
        for (int i = 0; i < count && at(10); ++i) {
            path.vertices.push_back({.at = *place(10)});
            path.vertices.back().bulge = real(42);
        }
        if (path.vertices.empty())
            return {};
        return DxfShape{.what = std::move(path), .fill = true};
    }

    std::optional<DxfShape> read_edges() {
        DxfLoop loop{.edges = {}, .plane = plane_};
        const int count = whole(93);
        for (int i = 0; i < count && at(72); ++i) {
            if (!read_edge(loop))
                return {};
        }
        if (loop.edges.empty())
            return {};
        return DxfShape{.what = std::move(loop), .fill = true};
    }

    bool read_edge(DxfLoop& loop) {
        switch (static_cast<EdgeKind>(whole(72))) {
        case EdgeKind::line:
            return read_line(loop);
        case EdgeKind::arc:
            return read_arc(loop);
        case EdgeKind::ellipse:
            return read_ellipse(loop);
        case EdgeKind::spline:
            return read_spline(loop);
        }
        return false;
    }

    bool read_line(DxfLoop& loop) {
        const auto from = place(10);
        const auto to = place(11);
        if (!from || !to)
            return false;
        loop.edges.emplace_back(DxfLine{*from, *to});
        return true;
    }

    bool read_arc(DxfLoop& loop) {
        const auto centre = place(10);
        if (!centre || !at(40))
            return false;
        const double radius = real(40);
        loop.edges.emplace_back(run_as_told(circle_arc(*centre, radius, 0, 0), 1));
        return true;
    }

    bool read_ellipse(DxfLoop& loop) {
        const auto centre = place(10);
        const auto major = place(11);
        const double ratio = real(40);
        if (!centre || !major || ratio == 0)
            return false;
        loop.edges.emplace_back(run_as_told(
            {.centre = *centre, .major = *major, .minor = ratio * Point{-major->Y, major->X}},
            ratio));
        return true;
    }

    /// One that runs clockwise has its angles counted that way too.
    EllipseArc run_as_told(EllipseArc arc, double ratio) {
        const double start = parameter_of(radians(real(50)), ratio);
        const double end = parameter_of(radians(real(51, 360)), ratio);
        const double side = whole(73, 1) != 0 ? 1 : -1;
        arc.start = side * start;
        arc.sweep = side * sweep_between(start, end);
        return arc;
    }

    bool read_spline(DxfLoop& loop) {
        Nurbs curve{.degree = static_cast<std::size_t>(std::max(0, whole(94, 3))),
                    .knots = {},
                    .points = {},
                    .weights = {}};
        (void)whole(73);
        (void)whole(74);
        const int knots = whole(95);
        const int points = whole(96);
        for (int i = 0; i < knots && at(40); ++i)
            curve.knots.push_back(real(40));
        for (int i = 0; i < points && at(10); ++i) {
            curve.points.push_back(*place(10));
            if (at(42))
                curve.weights.push_back(real(42));
        }
        if (curve.weights.size() != curve.points.size())
            curve.weights.clear();
        if (!is_whole(curve))
            return false;
        loop.edges.emplace_back(std::move(curve));
        return true;
    }

    const Values& values_;
    Map plane_;
    std::size_t next_ = 0;
};

} // namespace

std::vector<DxfShape> hatch_loops(const DxfEntity& entity) {
    return LoopReader(entity).read();
}

} // namespace velmora::imports
