#include "import/points_table.h"

#include "import/number_rows.h"
#include "import/number_text.h"
#include "import/row_order.h"
#include "import/text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace velmora::imports {

namespace {

constexpr double outlying = 1.6;
constexpr double count_jump = 0.5;
constexpr double upper_above_lower = 0.9;

/// Rows that belong together: of a table, a half, an element. `lines` are indexes of text lines.
struct Run {
    std::vector<Point> points = {};
    std::vector<double> third = {}; ///< empty where there is no third column
    std::vector<std::uint32_t> lines = {};
    bool parted = false; ///< a parting row is in front of it

    [[nodiscard]] std::size_t size() const { return points.size(); }

    void drop(std::size_t i) {
        const auto at = static_cast<std::ptrdiff_t>(i);
        points.erase(points.begin() + at);
        lines.erase(lines.begin() + at);
        if (!third.empty())
            third.erase(third.begin() + at);
    }

    void append(const Run& other) {
        points.insert(points.end(), other.points.begin(), other.points.end());
        third.insert(third.end(), other.third.begin(), other.third.end());
        lines.insert(lines.end(), other.lines.begin(), other.lines.end());
    }
};

bool is_count(double value) {
    return value >= 3 && value == std::floor(value);
}

double reach(const Point& point) {
    return std::max(std::abs(point.X), std::abs(point.Y));
}

bool holds_numbers(std::string_view line) {
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool starts_token = i == 0 || (!is_letter(line[i - 1]) && !is_digit(line[i - 1]));
        std::string_view rest = line.substr(i);
        if (starts_token && take_number(rest) && (rest.empty() || !is_letter(rest.front())))
            return true;
    }
    return false;
}

bool is_unit_chord(double chord) {
    return chord >= 0.75 && chord <= 1.25;
}

bool is_percent_chord(double chord) {
    return chord >= 75 && chord <= 125;
}

bool is_monotone(std::span<const Point> points) {
    const auto before = [](const Point& a, const Point& b) {
        return a.X < b.X;
    };
    const auto behind = [](const Point& a, const Point& b) {
        return a.X > b.X;
    };
    return std::ranges::is_sorted(points, before) || std::ranges::is_sorted(points, behind);
}

/// A loop on its own, and so no half of one.
bool is_loop(const Run& run) {
    return run.size() > 4 && turns_of_x(run.points).size() == 1 && comes_back(run.points);
}

class TableReader {
  public:
    TableReader(std::string_view text, const Choices& choices, Imported& imported)
        : choices_(choices), imported_(imported), rows_(text, imported.report) {}

    void read() {
        take_runs();
        drop_short_runs();
        if (runs_.empty())
            return;
        Run run = chosen_element();
        take_columns(run);
    }

  private:
    Report& report() { return imported_.report; }
    [[nodiscard]] const TextLine& line_of(const Run& run, std::size_t i) const {
        return rows_.lines()[run.lines[i]];
    }

    void say(Fact fact, const TextLine& line) { report().add(fact, line.number, rows_.text(line)); }
    void say(Fact fact, const Run& run, std::size_t i) { say(fact, line_of(run, i)); }

    void say_words(const TextLine& line) {
        if (runs_.empty() && line.kind == LineKind::words) {
            say(Fact::title, line);
            if (imported_.title.empty())
                imported_.title = rows_.text(line);
            return;
        }
        say(holds_numbers(rows_.text(line)) ? Fact::numbers_passed_over : Fact::line_passed_over,
            line);
    }

    void take_runs() {
        bool fresh = true;
        bool parted = false;
        for (const TextLine& line : rows_.lines()) {
            if (line.kind == LineKind::row) {
                if (std::exchange(fresh, false))
                    begin_run(std::exchange(parted, false));
                take_row(line);
                continue;
            }
            parted = parted || line.kind == LineKind::parting;
            fresh = fresh || line.kind == LineKind::words || line.kind == LineKind::parting;
            if (line.kind == LineKind::row_of_other)
                say_other(line);
            else
                say_words(line);
        }
    }

    void begin_run(bool parted) {
        runs_.push_back({.parted = parted});
        if (runs_.size() > 1)
            return;
        // Most tables are one run.
        runs_[0].points.reserve(rows_.rows());
        runs_[0].lines.reserve(rows_.rows());
    }

    void take_row(const TextLine& line) {
        const NumberRow row = rows_.values(line);
        Run& run = runs_.back();
        run.points.push_back({row.values[0], row.values[1]});
        run.lines.push_back(static_cast<std::uint32_t>(&line - rows_.lines().data()));
        if (rows_.columns() >= 3)
            run.third.push_back(row.values[2]);
    }

    /// The first row of four numbers or more is the extent of a grid around the outline.
    void say_other(const TextLine& line) {
        const bool grid = runs_.empty() && line.columns >= 4;
        say(grid ? Fact::grid_numbers : Fact::numbers_passed_over, line);
    }

    void drop_short_runs() {
        std::size_t longest = 0;
        for (const Run& run : runs_)
            longest = std::max(longest, run.size());
        const std::size_t least = std::max<std::size_t>(3, longest / 5);
        std::erase_if(runs_, [&](const Run& run) {
            if (run.size() >= least || longest < 3)
                return false;
            for (std::size_t i = 0; i < run.size(); ++i)
                say(Fact::short_run, run, i);
            return true;
        });
    }

    [[nodiscard]] bool are_elements() const {
        const bool parted = std::ranges::any_of(runs_, &Run::parted);
        return runs_.size() > 1 && (parted || std::ranges::any_of(runs_, is_loop));
    }

    /// Halves under titles of their own are one outline; elements are chosen from.
    Run chosen_element() {
        if (!are_elements()) {
            Run whole = std::move(runs_[0]);
            for (std::size_t i = 1; i < runs_.size(); ++i)
                whole.append(runs_[i]);
            return whole;
        }
        const auto longest = std::ranges::max_element(runs_, {}, &Run::size);
        const auto best = static_cast<std::size_t>(longest - runs_.begin());
        ask_for_element(best);
        const std::size_t chosen = std::min(choices_.element.value_or(best), runs_.size() - 1);
        for (std::size_t i = 0; i < runs_.size(); ++i) {
            if (i != chosen)
                report().add(Fact::element_left_out, line_of(runs_[i], 0).number, {},
                             static_cast<double>(runs_[i].size()));
        }
        return runs_[chosen];
    }

    void ask_for_element(std::size_t best) {
        Ask ask{.question = Question::element,
                .needed = !choices_.element,
                .line = line_of(runs_[best], 0).number,
                .best = best};
        for (const Run& run : runs_)
            ask.options.push_back(std::to_string(run.size()));
        imported_.asks.push_back(std::move(ask));
    }

    void take_columns(Run& run) {
        if (!run.third.empty()) {
            if (has_upper_and_lower(run))
                return take_upper_and_lower(run);
            report().add(Fact::third_column, 0);
        }
        take_counted(run);
    }

    static bool has_upper_and_lower(const Run& run) {
        if (!is_monotone(run.points) || run.size() < 3)
            return false;
        const bool constant =
            std::ranges::all_of(run.third, [&](double z) { return z == run.third.front(); });
        std::size_t above = 0;
        for (std::size_t i = 0; i < run.size(); ++i)
            above += run.points[i].Y >= run.third[i] ? 1 : 0;
        return !constant &&
               static_cast<double>(above) > upper_above_lower * static_cast<double>(run.size());
    }

    void take_upper_and_lower(const Run& run) {
        std::vector<Point> upper = run.points;
        std::vector<Point> lower;
        for (std::size_t i = 0; i < run.size(); ++i)
            lower.push_back({run.points[i].X, run.third[i]});
        if (upper.front().X > upper.back().X) {
            std::ranges::reverse(upper);
            std::ranges::reverse(lower);
        }
        finish(joined_halves(upper, lower), Fact::three_columns, line_of(run, 0).number);
    }

    void take_counted(Run& run) {
        const Point counts = run.points.front();
        const bool counted = is_count(counts.X) && is_count(counts.Y) &&
                             counts.X + counts.Y == static_cast<double>(run.size() - 1);
        if (!counted ||
            (choices_.order != RowOrder::by_itself && choices_.order != RowOrder::lednicer))
            return take_uncounted(run);
        report().add(Fact::count_pair, line_of(run, 0).number, {}, counts.X, counts.Y);
        run.drop(0);
        const std::size_t jump = only_jump(run.points, count_jump);
        take_halves(run, jump != 0 ? jump : static_cast<std::size_t>(counts.X));
    }

    void take_halves(const Run& run, std::size_t second) {
        const std::span<const Point> all = run.points;
        finish(joined_halves(all.first(second), all.subspan(second)), Fact::lednicer,
               line_of(run, 0).number);
    }

    void take_uncounted(Run& run) {
        drop_outlying(run);
        const Course course = course_of(run.points);
        const std::size_t line = line_of(run, 0).number;
        const RowOrder order =
            choices_.order == RowOrder::by_itself ? course.order : choices_.order;
        switch (order) {
        case RowOrder::lednicer:
            if (const std::size_t jump = only_jump(run.points, count_jump); jump != 0)
                return take_halves(run, jump);
            return finish(std::move(run.points), Fact::order_unknown, line);
        case RowOrder::from_the_nose:
        case RowOrder::selig:
            return take_loop(std::move(run.points), order, line);
        case RowOrder::as_it_is:
            if (course.open && !comes_back(run.points))
                return finish_open(std::move(run.points), line);
            return finish(std::move(run.points), Fact::order_unknown, line);
        case RowOrder::by_itself:
            break;
        }
        ask_for_order(run, course);
        finish(std::move(run.points), Fact::order_unknown, line);
    }

    /// What goes over and comes back, but not to its start, is left open.
    void take_loop(std::vector<Point> points, RowOrder order, std::size_t line) {
        if (!comes_back(points))
            return finish_open(std::move(points), line);
        if (order == RowOrder::selig)
            return finish(std::move(points), Fact::selig, line);
        finish(started_right(std::move(points)), Fact::from_the_nose, line);
    }

    void drop_outlying(Run& run) {
        for (const bool last : {false, true}) {
            while (run.size() > 3 && is_outlying(run, last ? run.size() - 1 : 0)) {
                const std::size_t i = last ? run.size() - 1 : 0;
                say(Fact::outlying_row, run, i);
                run.drop(i);
            }
        }
    }

    static bool is_outlying(const Run& run, std::size_t i) {
        double others = 0;
        Box box;
        for (std::size_t k = 0; k < run.size(); ++k) {
            if (k == i)
                continue;
            others = std::max(others, reach(run.points[k]));
            box.add(run.points[k]);
        }
        const bool airfoil = is_unit_chord(box.width()) || is_percent_chord(box.width());
        return airfoil && reach(run.points[i]) > outlying * others;
    }

    void ask_for_order(const Run& run, const Course& course) {
        constexpr std::size_t most_shown = 6;
        imported_.asks.push_back({.question = Question::order,
                                  .needed = true,
                                  .line = line_of(run, course.turns.front()).number,
                                  .options = {"selig", "lednicer", "from_the_nose", "as_it_is"},
                                  .best = 3});
        for (std::size_t i = 0; i < std::min(course.turns.size(), most_shown); ++i)
            say(Fact::suspicious_row, run, course.turns[i]);
    }

    void finish_open(std::vector<Point> points, std::size_t line) {
        report().add(Fact::open_row, 0, {}, static_cast<double>(points.size()));
        scale(points);
        imported_.chains.push_back({.points = std::move(points), .line = line});
    }

    void finish(std::vector<Point> points, Fact order, std::size_t line) {
        report().add(order, 0, {}, static_cast<double>(points.size()));
        if (order != Fact::order_unknown && twice_area(points) < 0) {
            report().add(Fact::reversed, 0);
            std::ranges::reverse(points);
        }
        if (points.size() > 1 && points.front() == points.back())
            points.pop_back();
        else
            say_gap(points);
        drop_doubles(points);
        scale(points);
        imported_.chains.push_back({.points = std::move(points), .closed = true, .line = line});
    }

    void drop_doubles(std::vector<Point>& points) {
        if (!choices_.remove_doubles)
            return;
        const auto doubles = std::ranges::unique(points);
        if (!doubles.empty())
            report().add(Fact::doubles, 0, {}, static_cast<double>(doubles.size()));
        points.erase(doubles.begin(), doubles.end());
    }

    void say_gap(const std::vector<Point>& points) {
        const double width = box_of(points).width();
        const double gap = distance(points.front(), points.back());
        if (width > 0)
            report().add(Fact::edge_gap, 0, {}, 100 * gap / width);
    }

    void scale(std::vector<Point>& points) {
        const double chord = box_of(points).width();
        report().add(Fact::chord, 0, {}, chord);
        if (is_percent_chord(chord)) {
            report().add(Fact::percent, 0);
            for (Point& point : points)
                point = {point.X / 100, point.Y / 100};
        } else if (!is_unit_chord(chord)) {
            imported_.asks.push_back(
                {.question = Question::scale, .options = {"as_it_is", "percent", "mm", "in"}});
        }
    }

    const Choices& choices_;
    Imported& imported_;
    NumberRows rows_;
    std::vector<Run> runs_;
};

} // namespace

void read_points_table(std::string_view text, const Choices& choices, Imported& imported) {
    TableReader(text, choices, imported).read();
}

} // namespace velmora::imports
