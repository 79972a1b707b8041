#include "cutting/template_sheets.h"

#include "import/number_text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <optional>
#include <utility>

namespace velmora::cutting {

namespace {

constexpr double point_arm = 0.7; ///< of the cross at a point
constexpr double sync_radius = 1.5;
constexpr double joint_arm = 5;
constexpr double letters = 3;

bool within_numbers(const SidePath& path) {
    return std::ranges::all_of(path.points, [](const Point& point) {
        return std::abs(point.X) <= imports::largest_number &&
               std::abs(point.Y) <= imports::largest_number;
    });
}

/// What of a segment lies within the box, as two parts of its length; none where nothing does.
struct Part {
    double from = 0;
    double to = 1;
};

bool cut_by(Part& part, double from, double way, double low, double high) {
    if (way == 0)
        return from >= low && from <= high;
    const auto [enter, leave] = std::minmax({(low - from) / way, (high - from) / way});
    part = {std::max(part.from, enter), std::min(part.to, leave)};
    return part.from < part.to;
}

std::optional<Part> part_within(const Box& box, const Point& a, const Point& b) {
    Part part;
    const Point way = b - a;
    if (!cut_by(part, a.X, way.X, box.min_X, box.max_X) ||
        !cut_by(part, a.Y, way.Y, box.min_Y, box.max_Y))
        return {};
    return part;
}

Point at_part(const Point& a, const Point& b, double part) {
    if (part == 0)
        return a;
    return part == 1 ? b : a + part * (b - a);
}

/// One direction of the tiling.
struct Rule {
    double whole = 0;  ///< of the shape on paper
    double shown = 0;  ///< by one sheet
    double step = 0;   ///< from a sheet to the next
    double margin = 0; ///< before what is shown
    double count = 1;

    /// The sheets that show something between two places, held to those that there are.
    [[nodiscard]] std::pair<std::size_t, std::size_t> sheets(double low, double high) const {
        const double first = std::clamp(std::ceil((low - shown) / step), 0.0, count - 1);
        const double last = std::clamp(std::floor(high / step), first, count - 1);
        return {static_cast<std::size_t>(first), static_cast<std::size_t>(last)};
    }
};

/// A shape that is larger by rounding alone gets no sheet of its own.
Rule tiled(double whole, double paper, const Paper& choices) {
    const double shown = paper - 2 * choices.margin;
    const double step = shown - choices.overlap;
    const double rest = whole - shown;
    const double count = rest > 1e-9 * whole ? 1 + std::ceil(rest / step * (1 - 1e-12)) : 1;
    return {whole, shown, step, choices.margin, count};
}

Rule whole_sheet(double whole, double margin) {
    const double shown = std::max(whole, 1.0);
    return {whole, shown, shown, margin, 1};
}

/// "A" to "Z", "AA" and so on.
std::string letters_of(std::size_t number) {
    std::string text;
    for (++number; number > 0; number = (number - 1) / 26)
        text.insert(text.begin(), static_cast<char>('A' + (number - 1) % 26));
    return text;
}

class Tiler {
  public:
    Tiler(const SidePath& A, const SidePath& B, const TemplateChoices& choices)
        : A_(A), B_(B), choices_(choices) {}

    SheetLayout layout() {
        layout_.fault = prepare();
        if (layout_.fault != SheetFault::none)
            return {.fault = layout_.fault};
        make_sheets();
        draw(A_, Ink::side_A);
        draw(B_, Ink::side_B);
        leave_out_empty_sheets();
        mark_joints();
        return std::move(layout_);
    }

  private:
    SheetFault prepare() {
        if (A_.points.empty() && B_.points.empty())
            return SheetFault::no_points;
        if (!within_numbers(A_) || !within_numbers(B_))
            return SheetFault::beyond_numbers;
        if (!(choices_.scale > 0) || !std::isfinite(choices_.scale))
            return SheetFault::bad_scale;
        for (const SidePath* path : {&A_, &B_})
            for (const Point& point : path->points)
                box_.add(point);
        return choose_rules();
    }

    SheetFault choose_rules() {
        const Paper& paper = choices_.paper;
        const double width = choices_.scale * box_.width();
        const double height = choices_.scale * box_.height();
        if (!(width <= imports::largest_number && height <= imports::largest_number))
            return SheetFault::beyond_numbers;
        if (!(paper.margin >= 0) || !std::isfinite(paper.margin))
            return SheetFault::no_room;
        if (choices_.one_sheet) {
            across_ = whole_sheet(width, paper.margin);
            down_ = whole_sheet(height, paper.margin);
        } else {
            across_ = tiled(width, paper.width, paper);
            down_ = tiled(height, paper.height, paper);
        }
        if (!has_room(across_) || !has_room(down_))
            return SheetFault::no_room;
        if (across_.count * down_.count > static_cast<double>(SheetLayout::most))
            return SheetFault::too_many_sheets;
        return SheetFault::none;
    }

    [[nodiscard]] bool has_room(const Rule& rule) const {
        return std::isfinite(rule.shown) && rule.shown > 0 && rule.step > 0 &&
               (choices_.one_sheet || choices_.paper.overlap >= 0);
    }

    void make_sheets() {
        layout_.width = across_.shown + 2 * across_.margin;
        layout_.height = down_.shown + 2 * down_.margin;
        layout_.columns = static_cast<std::size_t>(across_.count);
        layout_.rows = static_cast<std::size_t>(down_.count);
        for (std::size_t row = 0; row < layout_.rows; ++row)
            for (std::size_t column = 0; column < layout_.columns; ++column)
                layout_.sheets.push_back({.column = column, .row = row});
    }

    /// On one long sheet of paper, before it is cut into sheets.
    [[nodiscard]] Point on_paper(const Point& point) const {
        return {choices_.scale * (point.X - box_.min_X), choices_.scale * (box_.max_Y - point.Y)};
    }

    [[nodiscard]] Box shown_by(const Sheet& sheet) const {
        const double left = static_cast<double>(sheet.column) * across_.step;
        const double top = static_cast<double>(sheet.row) * down_.step;
        return {left, top, left + across_.shown, top + down_.shown};
    }

    [[nodiscard]] Point on_sheet(const Sheet& sheet, const Point& at) const {
        const Box box = shown_by(sheet);
        return {at.X - box.min_X + across_.margin, at.Y - box.min_Y + down_.margin};
    }

    /// Hands out each sheet that may show something of a box.
    template <class Use>
    void for_sheets(const Box& box, Use&& use) {
        const auto [left, right] = across_.sheets(box.min_X, box.max_X);
        const auto [top, bottom] = down_.sheets(box.min_Y, box.max_Y);
        for (std::size_t row = top; row <= bottom; ++row)
            for (std::size_t column = left; column <= right; ++column)
                use(row * layout_.columns + column);
    }

    void draw(const SidePath& path, Ink ink) {
        if (path.points.size() > 1)
            draw_outline(path.points, ink);
        if (choices_.points)
            for (const Point& point : path.points)
                put_cross(point);
        put_numbers(path);
        if (choices_.sync)
            put_sync_points(path);
    }

    void draw_outline(const std::vector<Point>& points, Ink ink) {
        std::vector<std::size_t> begun(layout_.sheets.size());
        for (std::size_t i = 0; i < begun.size(); ++i)
            begun[i] = layout_.sheets[i].lines.size();
        const std::size_t steps = points.size() - (choices_.closed ? 0 : 1);
        for (std::size_t i = 0; i < steps; ++i)
            draw_step(on_paper(points[i]), on_paper(points[i + 1 < points.size() ? i + 1 : 0]), ink,
                      begun);
        for (std::size_t i = 0; i < begun.size(); ++i)
            close(layout_.sheets[i].lines, begun[i]);
    }

    void draw_step(const Point& a, const Point& b, Ink ink, const std::vector<std::size_t>& begun) {
        const std::array<Point, 2> ends = {a, b};
        for_sheets(box_of(ends), [&](std::size_t number) {
            Sheet& sheet = layout_.sheets[number];
            const auto part = part_within(shown_by(sheet), a, b);
            if (!part)
                return;
            const Point from = on_sheet(sheet, at_part(a, b, part->from));
            const bool goes_on =
                sheet.lines.size() > begun[number] && sheet.lines.back().points.back() == from;
            if (!goes_on)
                sheet.lines.push_back({.ink = ink, .closed = false, .points = {from}});
            sheet.lines.back().points.push_back(on_sheet(sheet, at_part(a, b, part->to)));
        });
    }

    /// A whole outline on a sheet is one line that comes back.
    void close(std::vector<SheetLine>& lines, std::size_t begun) const {
        if (!choices_.closed || lines.size() != begun + 1)
            return;
        SheetLine& line = lines.back();
        if (line.points.size() < 3 || line.points.front() != line.points.back())
            return;
        line.points.pop_back();
        line.closed = true;
    }

    /// Hands out each sheet that shows a point, with its place there.
    template <class Use>
    void for_sheets_at(const Point& point, Use&& use) {
        const Point at = on_paper(point);
        const std::array<Point, 1> place = {at};
        for_sheets(box_of(place), [&](std::size_t number) {
            Sheet& sheet = layout_.sheets[number];
            const Box box = shown_by(sheet);
            if (at.X >= box.min_X && at.X <= box.max_X && at.Y >= box.min_Y && at.Y <= box.max_Y)
                use(sheet, on_sheet(sheet, at));
        });
    }

    static void add_cross(Sheet& sheet, const Point& at, double arm, Ink ink) {
        sheet.lines.push_back(
            {.ink = ink, .closed = false, .points = {{at.X - arm, at.Y}, {at.X + arm, at.Y}}});
        sheet.lines.push_back(
            {.ink = ink, .closed = false, .points = {{at.X, at.Y - arm}, {at.X, at.Y + arm}}});
    }

    void put_cross(const Point& point) {
        for_sheets_at(point, [](Sheet& sheet, const Point& at) {
            add_cross(sheet, at, point_arm, Ink::point);
        });
    }

    void put_text(const Point& point, std::size_t number, double beside, Ink ink) {
        for_sheets_at(point, [&](Sheet& sheet, const Point& at) {
            sheet.texts.push_back({.ink = ink,
                                   .at = {at.X + beside, at.Y - beside},
                                   .height = letters,
                                   .text = std::to_string(number)});
        });
    }

    void put_numbers(const SidePath& path) {
        if (choices_.numbers_each == 0)
            return;
        for (std::size_t i = 0; i < path.points.size(); i += choices_.numbers_each)
            put_text(path.points[i], i + 1, point_arm, Ink::point);
    }

    void put_sync_points(const SidePath& path) {
        for (std::size_t n = 0; n < path.sync.size(); ++n) {
            if (path.sync[n] >= path.points.size())
                continue;
            const Point& point = path.points[path.sync[n]];
            for_sheets_at(point, [](Sheet& sheet, const Point& at) {
                sheet.circles.push_back({.ink = Ink::sync, .centre = at, .radius = sync_radius});
            });
            put_text(point, n + 1, sync_radius, Ink::sync);
        }
    }

    void leave_out_empty_sheets() {
        std::erase_if(layout_.sheets, [](const Sheet& sheet) {
            return sheet.lines.empty() && sheet.circles.empty() && sheet.texts.empty();
        });
    }

    /// In the middle of what neighbours show both, at the same places of the shape on each.
    void mark_joints() {
        if (layout_.columns * layout_.rows == 1)
            return;
        const double half = choices_.paper.overlap / 2;
        for (Sheet& sheet : layout_.sheets) {
            const double left = across_.margin + half;
            const double right = across_.margin + across_.shown - half;
            const double top = down_.margin + half;
            const double bottom = down_.margin + down_.shown - half;
            for (const Point& corner :
                 {Point{left, top}, {right, top}, {left, bottom}, {right, bottom}})
                add_cross(sheet, corner, joint_arm, Ink::joint);
            name(sheet, {left, right, top, bottom});
        }
    }

    /// A sheet's own name in a corner, and at each edge the name of the sheet that is glued there.
    void name(Sheet& sheet, const std::array<double, 4>& edges) const {
        const auto [left, right, top, bottom] = edges;
        const double middle_X = (left + right) / 2;
        const double middle_Y = (top + bottom) / 2;
        add_name(sheet, {left + joint_arm, bottom - joint_arm}, sheet.column, sheet.row, 2);
        if (sheet.column > 0)
            add_name(sheet, {left, middle_Y}, sheet.column - 1, sheet.row, 1);
        if (sheet.column + 1 < layout_.columns)
            add_name(sheet, {right - 2 * letters, middle_Y}, sheet.column + 1, sheet.row, 1);
        if (sheet.row > 0)
            add_name(sheet, {middle_X, top + letters}, sheet.column, sheet.row - 1, 1);
        if (sheet.row + 1 < layout_.rows)
            add_name(sheet, {middle_X, bottom}, sheet.column, sheet.row + 1, 1);
    }

    static void add_name(Sheet& sheet, const Point& at, std::size_t column, std::size_t row,
                         double size) {
        sheet.texts.push_back({.ink = Ink::joint,
                               .at = at,
                               .height = size * letters,
                               .text = letters_of(row) + std::to_string(column + 1)});
    }

    const SidePath& A_;
    const SidePath& B_;
    const TemplateChoices& choices_;
    Box box_;
    Rule across_;
    Rule down_;
    SheetLayout layout_;
};

} // namespace

SheetLayout template_of(const SidePath& A, const SidePath& B, const TemplateChoices& choices) {
    return Tiler(A, B, choices).layout();
}

} // namespace velmora::cutting
