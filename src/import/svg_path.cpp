#include "import/svg_path.h"

#include "import/number_text.h"
#include "import/text.h"

#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <span>

namespace velmora::imports {

namespace {

/// Numbers of a command; 0 for Z, none for anything else.
std::optional<std::size_t> numbers_of(char command) {
    switch (command) {
    case 'M':
    case 'L':
    case 'T':
        return 2;
    case 'H':
    case 'V':
        return 1;
    case 'S':
    case 'Q':
        return 4;
    case 'C':
        return 6;
    case 'A':
        return 7;
    case 'Z':
        return 0;
    default:
        return {};
    }
}

class PathReader {
  public:
    PathReader(std::string_view data, const SvgPen& pen) : data_(data), rest_(data), pen_(pen) {}

    std::size_t run() {
        skip_separators();
        while (!rest_.empty() && take_command())
            skip_separators();
        end_run(false);
        return data_.size() - rest_.size();
    }

  private:
    void skip_separators() {
        while (!rest_.empty() && (is_blank(rest_.front()) || rest_.front() == ','))
            rest_.remove_prefix(1);
    }

    /// A command's letter, or the letter before once more: pairs after a move are lines. What can't
    /// be carried out is left in `rest_`.
    bool take_command() {
        const std::string_view before = rest_;
        char letter = rest_.front();
        if (is_letter(letter))
            rest_.remove_prefix(1);
        else if (capital(last_) == 'M')
            letter = last_ == 'm' ? 'l' : 'L';
        else
            letter = last_;
        const auto count = numbers_of(capital(letter));
        const bool starts = capital(letter) == 'M' || begun_;
        const bool again = capital(letter) == 'Z' && !is_letter(before.front());
        if (!count || !starts || again || !take_numbers(letter, *count)) {
            rest_ = before;
            return false;
        }
        carry_out(letter);
        last_ = letter;
        return true;
    }

    bool take_numbers(char letter, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            skip_separators();
            const bool is_flag = capital(letter) == 'A' && (i == 3 || i == 4);
            const auto value = is_flag ? take_flag() : take_number(rest_);
            if (!value)
                return false;
            numbers_[i] = *value;
        }
        return true;
    }

    /// One character, whatever follows it.
    std::optional<double> take_flag() {
        if (rest_.empty() || (rest_.front() != '0' && rest_.front() != '1'))
            return {};
        const double value = rest_.front() - '0';
        rest_.remove_prefix(1);
        return value;
    }

    [[nodiscard]] Point pair(char letter, std::size_t i) const {
        const Point point{numbers_[i], numbers_[i + 1]};
        return capital(letter) == letter ? point : at_ + point;
    }

    void carry_out(char letter) {
        const bool relative = capital(letter) != letter;
        switch (capital(letter)) {
        case 'M':
            end_run(false);
            at_ = start_ = pair(letter, 0);
            begun_ = true;
            break;
        case 'L':
            line_to(pair(letter, 0));
            break;
        case 'H':
            line_to({relative ? at_.X + numbers_[0] : numbers_[0], at_.Y});
            break;
        case 'V':
            line_to({at_.X, relative ? at_.Y + numbers_[0] : numbers_[0]});
            break;
        case 'C':
            curve_to(pair(letter, 0), pair(letter, 2), pair(letter, 4));
            break;
        case 'S':
            curve_to(reflected("CS"), pair(letter, 0), pair(letter, 2));
            break;
        case 'Q':
            bend_to(pair(letter, 0), pair(letter, 2));
            break;
        case 'T':
            bend_to(reflected("QT"), pair(letter, 0));
            break;
        case 'A':
            arc_to(pair(letter, 5));
            break;
        default:
            end_run(true);
            at_ = start_;
        }
    }

    /// The last control point mirrored at the path's present place, after a command of the same
    /// family; else that place.
    [[nodiscard]] Point reflected(std::string_view family) const {
        const bool follows = family.find(capital(last_)) != std::string_view::npos && last_ != 0;
        return follows ? 2 * at_ - control_ : at_;
    }

    void begin_run() {
        if (running_)
            return;
        running_ = true;
        pen_.pieces.begin(pen_.line, pen_.layer);
        pen_.pieces.add(pen_.map(at_));
    }

    void end_run(bool closed) {
        if (running_)
            pen_.pieces.end(closed);
        running_ = false;
    }

    void line_to(const Point& to) {
        begin_run();
        pen_.pieces.add(pen_.map(to));
        at_ = to;
    }

    void draw(const Bezier& c) {
        begin_run();
        const Map& map = pen_.map;
        flatten(Bezier{map(c.p0), map(c.p1), map(c.p2), map(c.p3)}, pen_.tolerance, pen_.pieces);
        at_ = c.p3;
    }

    void curve_to(const Point& first, const Point& second, const Point& to) {
        draw({at_, first, second, to});
        control_ = second;
    }

    void bend_to(const Point& control, const Point& to) {
        draw(raised(at_, control, to));
        control_ = control;
    }

    void arc_to(const Point& to) {
        const auto arc =
            svg_arc(at_, to, numbers_[0], numbers_[1], numbers_[2] * (std::numbers::pi / 180),
                    numbers_[3] != 0, numbers_[4] != 0);
        begin_run();
        if (arc)
            flatten_between(mapped(*arc, pen_.map), pen_.tolerance, pen_.pieces);
        line_to(to);
    }

    std::string_view data_;
    std::string_view rest_;
    const SvgPen& pen_;
    std::array<double, 7> numbers_{};
    char last_ = 0;
    bool begun_ = false;
    bool running_ = false;
    Point at_;
    Point start_;
    Point control_;
};

} // namespace

std::optional<EllipseArc> svg_arc(const Point& from, const Point& to, double radius_X,
                                  double radius_Y, double angle, bool large,
                                  bool counter_clockwise) {
    double rx = std::abs(radius_X);
    double ry = std::abs(radius_Y);
    if (from == to || rx == 0 || ry == 0)
        return {};
    const Point along{std::cos(angle), std::sin(angle)};
    const Point across{-along.Y, along.X};
    const Point half = 0.5 * (from - to);
    const Point p{dot(half, along) / rx, dot(half, across) / ry};
    const double reach = dot(p, p);
    if (reach > 1) {
        rx *= std::sqrt(reach);
        ry *= std::sqrt(reach);
    }
    // On the circle of radius 1 that the ellipse becomes when its axes are measured by themselves.
    const Point a{dot(half, along) / rx, dot(half, across) / ry};
    const double square = dot(a, a);
    const double off = std::sqrt(std::max(0.0, (1 - square) / square));
    const Point centre = (large == counter_clockwise ? -off : off) * Point{a.Y, -a.X};
    const Point start = a - centre;
    const Point end = -1 * a - centre;
    double sweep = std::atan2(cross(start, end), dot(start, end));
    if (counter_clockwise && sweep < 0)
        sweep += 2 * std::numbers::pi;
    if (!counter_clockwise && sweep > 0)
        sweep -= 2 * std::numbers::pi;
    return EllipseArc{0.5 * (from + to) + centre.X * rx * along + centre.Y * ry * across,
                      rx * along, ry * across, std::atan2(start.Y, start.X), sweep};
}

std::size_t read_svg_path(std::string_view data, const SvgPen& pen) {
    return PathReader(data, pen).run();
}

} // namespace velmora::imports
