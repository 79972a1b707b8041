#include "import/gcode.h"

#include "import/curves.h"
#include "import/gcode_words.h"
#include "import/number_text.h"
#include "import/text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <utility>

namespace velmora::imports {

namespace {

constexpr std::size_t letters = 26;

std::size_t index(char letter) {
    return static_cast<std::size_t>(letter - 'A');
}

bool is_axis(char letter) {
    return std::string_view("XYZUVWABC").find(letter) != std::string_view::npos;
}

/// Which axes the program names.
std::array<bool, letters> axes_in(std::string_view text) {
    std::array<bool, letters> found{};
    std::vector<GcodeWord> words;
    std::string_view line;
    for (Lines lines(text); lines.next(line);) {
        if (gcode_words(line, words) != GcodeLine::read)
            continue;
        for (const GcodeWord& word : words)
            found[index(word.letter)] = true;
    }
    return found;
}

/// The path of both ends of the wire, point by point.
struct Road {
    std::vector<Point> first;
    std::vector<Point> second; ///< none where both run alike
    std::vector<bool> rapid;   ///< of the move to each point
};

class GcodeReader {
  public:
    GcodeReader(std::string_view text, double tolerance_mm, const Choices& choices,
                Imported& imported)
        : text_(text), tolerance_(tolerance_mm), choices_(choices), imported_(imported) {}

    void read() {
        choose_axes();
        make_room();
        Lines lines(text_);
        std::string_view line;
        while (!ended_ && lines.next(line)) {
            line_ = lines.number();
            take_line(line);
        }
        if (refused_)
            return;
        ask_for_unit();
        finish();
    }

  private:
    Report& report() { return imported_.report; }

    void choose_axes() {
        const auto found = axes_in(text_);
        const auto has = [&](char letter) {
            return found[index(letter)];
        };
        if (!choices_.axes.empty()) {
            axes_ = choices_.axes;
        } else if (has('U') && has('V')) {
            axes_ = "XYUV";
        } else if (has('U') && has('Z')) {
            axes_ = "XYUZ";
            ask_for_axes(2);
        } else if (has('A') && has('Z')) {
            axes_ = "XYZA";
            ask_for_axes(1);
        } else if (has('A') && has('B')) {
            axes_ = "XYAB";
        } else {
            axes_ = "XY";
        }
        if (axes_.size() != 4)
            axes_ = "XY";
        report().add(Fact::axes, 0, axes_);
    }

    /// What is not filled of it takes no memory; growing would take twice as much.
    void make_room() {
        const auto lines = static_cast<std::size_t>(std::ranges::count(text_, '\n'));
        const std::size_t points = std::min(lines + 1, Pieces::most_points);
        road_.first.reserve(points);
        road_.rapid.reserve(points);
        if (two_ends())
            road_.second.reserve(points);
    }

    [[nodiscard]] bool two_ends() const { return axes_.size() == 4; }

    void ask_for_axes(std::size_t best) {
        imported_.asks.push_back({.question = Question::axes,
                                  .needed = true,
                                  .options = {"XYUV", "XYZA", "XYUZ"},
                                  .best = best});
    }

    void take_line(std::string_view line) {
        say_plane(line);
        switch (gcode_words(line, words_)) {
        case GcodeLine::refused:
            report().add(Fact::word_refused, line_, trimmed(line));
            refused_ = ended_ = true;
            break;
        case GcodeLine::read:
            take_words();
            break;
        case GcodeLine::empty:
            break;
        }
    }

    /// Generators write where the planes of the two ends lie into a comment.
    void say_plane(std::string_view line) {
        for (const std::string_view key : {"XY_Z_POS", "UV_Z_POS"}) {
            const std::size_t at = line.find(key);
            if (at == std::string_view::npos)
                continue;
            std::string_view rest = line.substr(at + key.size());
            rest.remove_prefix(std::min(rest.find_first_of("+-.0123456789"), rest.size()));
            if (const auto value = take_number(rest))
                report().add(Fact::layer_planes, line_, key.substr(0, 2), *value);
        }
    }

    void take_words() {
        bool moves = false;
        bool sets = false;
        given_.fill(false);
        for (const GcodeWord& word : words_) {
            if (word.letter == 'G')
                sets = take_code(word.number) || sets;
            else if (word.letter == 'M')
                ended_ = ended_ || word.number == 2 || word.number == 30;
            else {
                given_[index(word.letter)] = true;
                values_[index(word.letter)] = word.number;
                moves = moves || is_axis(word.letter);
            }
        }
        if (sets)
            return set_places();
        if (moves)
            move();
    }

    /// True for the one that gives the places other numbers without a move.
    bool take_code(double code) {
        if (code >= 0 && code <= 3 && code == std::floor(code))
            mode_ = static_cast<int>(code);
        else if (code == 20 || code == 21) {
            unit_ = code == 20 ? 25.4 : 1;
            unit_named_ = true;
        } else if (code == 90 || code == 91)
            relative_ = code == 91;
        else if (code == 90.1 || code == 91.1)
            absolute_centre_ = code == 90.1;
        return code == 92;
    }

    void set_places() {
        for (char letter = 'A'; letter <= 'Z'; ++letter) {
            if (given_[index(letter)] && is_axis(letter))
                places_[index(letter)] = unit_ * values_[index(letter)];
        }
    }

    [[nodiscard]] Point place(std::size_t axis) const {
        return {places_[index(axes_[axis])], places_[index(axes_[axis + 1])]};
    }

    void move() {
        if (road_.first.empty())
            put(place(0), second_place());
        const Point from = place(0);
        const Point second_from = second_place();
        for (char letter = 'A'; letter <= 'Z'; ++letter) {
            if (!given_[index(letter)] || !is_axis(letter))
                continue;
            double& at = places_[index(letter)];
            at = unit_ * values_[index(letter)] + (relative_ ? at : 0);
        }
        const auto arc = mode_ >= 2 ? arc_between(from, place(0)) : std::nullopt;
        if (arc)
            put_arc(*arc, second_from);
        put(place(0), second_place());
    }

    [[nodiscard]] Point second_place() const { return two_ends() ? place(2) : Point{}; }

    [[nodiscard]] std::optional<double> given(char letter) const {
        return given_[index(letter)] ? std::optional(unit_ * values_[index(letter)]) : std::nullopt;
    }

    [[nodiscard]] std::optional<EllipseArc> arc_between(const Point& from, const Point& to) {
        const bool left = mode_ == 3;
        Point centre;
        if (const auto radius = given('R')) {
            const auto found = centre_by_radius(from, to, *radius, left);
            if (!found)
                return {};
            centre = *found;
        } else {
            const Point offset{given('I').value_or(0), given('J').value_or(0)};
            centre = absolute_centre_ ? offset : from + offset;
        }
        const double radius = distance(centre, from);
        if (radius == 0)
            return {};
        const Point a = from - centre;
        const Point b = to - centre;
        double sweep = std::atan2(cross(a, b), dot(a, b));
        if (left && sweep <= 0)
            sweep += 2 * std::numbers::pi;
        if (!left && sweep >= 0)
            sweep -= 2 * std::numbers::pi;
        return circle_arc(centre, radius, std::atan2(a.Y, a.X), sweep);
    }

    /// Of the two arcs the shorter for a positive radius.
    static std::optional<Point> centre_by_radius(const Point& from, const Point& to, double radius,
                                                 bool left) {
        const Point half = 0.5 * (to - from);
        const double square = dot(half, half);
        if (square == 0)
            return {};
        const double off = std::sqrt(std::max(0.0, radius * radius - square) / square);
        const double side = left == (radius > 0) ? off : -off;
        return from + half + side * Point{-half.Y, half.X};
    }

    void put_arc(const EllipseArc& arc, const Point& second_from) {
        const std::size_t count = chords_of(arc, tolerance_);
        for (std::size_t i = 1; i < count; ++i) {
            const double part = static_cast<double>(i) / static_cast<double>(count);
            put(arc.at(arc.start + part * arc.sweep),
                second_from + part * (second_place() - second_from));
        }
    }

    void put(const Point& first, const Point& second) {
        const bool beyond = std::max({std::abs(first.X), std::abs(first.Y), std::abs(second.X),
                                      std::abs(second.Y)}) > largest_number;
        const bool full = road_.first.size() >= Pieces::most_points;
        if (full && !std::exchange(told_of_too_many_, true))
            report().add(Fact::too_many_points, line_, {},
                         static_cast<double>(Pieces::most_points));
        const bool stands = !road_.first.empty() && road_.first.back() == first &&
                            (!two_ends() || road_.second.back() == second);
        if (full || stands || beyond)
            return;
        road_.first.push_back(first);
        if (two_ends())
            road_.second.push_back(second);
        road_.rapid.push_back(mode_ == 0);
    }

    void ask_for_unit() {
        if (unit_named_)
            return report().add(Fact::unit, 0, unit_ == 1 ? "millimetre" : "inch", unit_);
        report().add(Fact::no_unit, 0);
        if (!choices_.unit_mm)
            imported_.asks.push_back({.question = Question::unit, .options = {"mm", "in"}});
    }

    /// The first point is where the machine is: the move to the second one counts.
    void trim_approach() {
        std::size_t begin = 0;
        std::size_t end = road_.first.size();
        while (begin + 1 < end && road_.rapid[begin + 1])
            ++begin;
        while (end > begin + 1 && road_.rapid[end - 1])
            --end;
        const std::size_t left_out = begin + road_.first.size() - end;
        if (left_out == 0)
            return;
        report().add(Fact::approach_left_out, 0, {}, static_cast<double>(left_out));
        for (std::vector<Point>* points : {&road_.first, &road_.second}) {
            if (points->empty())
                continue;
            points->resize(end);
            points->erase(points->begin(), points->begin() + static_cast<std::ptrdiff_t>(begin));
        }
    }

    void finish() {
        if (choices_.trim_approach)
            trim_approach();
        if (road_.first.size() < 2)
            return;
        const bool two = two_ends();
        const bool closed = comes_back(road_.first) && (!two || comes_back(road_.second));
        add_chain(std::move(road_.first), closed, two ? axes_.substr(0, 2) : "");
        if (two)
            add_chain(std::move(road_.second), closed, axes_.substr(2));
        imported_.unit_mm = 1;
    }

    static bool comes_back(const std::vector<Point>& points) {
        return points.size() > 2 &&
               distance(points.front(), points.back()) <= 1e-6 * box_of(points).size();
    }

    void add_chain(std::vector<Point> points, bool closed, std::string name) {
        if (closed)
            points.pop_back();
        const double unit = unit_named_ ? 1 : choices_.unit_mm.value_or(1);
        for (Point& point : points)
            point = unit * point;
        imported_.chains.push_back(
            {.points = std::move(points), .closed = closed, .name = std::move(name), .line = 1});
    }

    std::string_view text_;
    double tolerance_;
    const Choices& choices_;
    Imported& imported_;
    std::string axes_;
    std::vector<GcodeWord> words_;
    std::array<double, letters> values_{};
    std::array<bool, letters> given_{};
    std::array<double, letters> places_{}; ///< in millimetres
    Road road_;
    std::size_t line_ = 0;
    double unit_ = 1;
    int mode_ = 0;
    bool unit_named_ = false;
    bool relative_ = false;
    bool absolute_centre_ = false;
    bool ended_ = false;
    bool refused_ = false;
    bool told_of_too_many_ = false;
};

} // namespace

void read_gcode(std::string_view text, double tolerance_mm, const Choices& choices,
                Imported& imported) {
    GcodeReader(text, tolerance_mm, choices, imported).read();
}

} // namespace velmora::imports
