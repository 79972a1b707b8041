#include "import/import_bytes.h"

#include "import/chains.h"
#include "import/dxf.h"
#include "import/gcode.h"
#include "import/kind.h"
#include "import/points_table.h"
#include "import/svg.h"
#include "import/text.h"

#include <algorithm>
#include <string>
#include <utility>

namespace velmora::imports {

namespace {

constexpr double usual_tolerance_mm = 0.01;
/// Of the drawing's size, where that is finer.
constexpr double usual_tolerance_share = 1.0 / 20'000;
constexpr std::size_t largest_file = 1'000'000'000;

double size_of(const Drawing& drawing) {
    Box box;
    for (const Point& point : drawing.pieces.pool())
        box.add(point);
    return box.size();
}

double unit_of(const Drawing& drawing, const Choices& choices) {
    return choices.unit_mm.value_or(drawing.unit_mm);
}

/// In the file's unit.
double wanted_tolerance(const Drawing& drawing, const Choices& choices) {
    const double unit = unit_of(drawing, choices);
    const double unit_or_mm = unit > 0 ? unit : 1;
    if (choices.tolerance)
        return *choices.tolerance;
    if (choices.tolerance_mm)
        return *choices.tolerance_mm / unit_or_mm;
    const double size = size_of(drawing);
    const double by_size = size > 0 ? size * usual_tolerance_share : usual_tolerance_mm;
    return std::min(usual_tolerance_mm / unit_or_mm, by_size);
}

/// How fine it has to be is known only when it was read: where the first reading was coarser, or
/// much finer than asked for, it is read again.
template <class Read>
Drawing read_at_wanted_tolerance(const Choices& choices, Report& report, Read&& read) {
    const double first = choices.tolerance.value_or(usual_tolerance_mm);
    Report first_report;
    Drawing drawing = read(first, first_report);
    const double wanted = wanted_tolerance(drawing, choices);
    if (!drawing.pieces.curved() || (wanted >= first && wanted <= 2 * first)) {
        report.append(first_report);
        return drawing;
    }
    return read(std::max(wanted, size_of(drawing) * 1e-9), report);
}

class Importer {
  public:
    Importer(std::string_view bytes, std::string_view name, const Choices& choices)
        : bytes_(bytes), name_(name), choices_(choices) {}

    Imported run() {
        if (bytes_.size() > largest_file) {
            report().add(Fact::not_read, 0, "larger than 1 GB");
            return std::move(imported_);
        }
        std::string storage;
        const std::string_view text =
            is_binary_dxf_start() ? bytes_ : decoded(bytes_, storage, report());
        choose_kind(text);
        read(text);
        return std::move(imported_);
    }

  private:
    Report& report() { return imported_.report; }

    [[nodiscard]] bool is_binary_dxf_start() const {
        return bytes_.starts_with("AutoCAD Binary DXF");
    }

    void choose_kind(std::string_view text) {
        const KindGuess guess = guess_kind(bytes_, text, name_);
        imported_.guesses = guess.kinds;
        if (choices_.kind) {
            imported_.kind = *choices_.kind;
            return;
        }
        if (guess.kinds.empty()) {
            report().add(Fact::not_read, 0, guess.not_read);
            return;
        }
        imported_.kind = guess.kinds.front();
        if (guess.certain)
            return;
        Ask ask{.question = Question::kind, .needed = true};
        for (const Kind kind : guess.kinds)
            ask.options.emplace_back(kind_name(kind));
        imported_.asks.push_back(std::move(ask));
    }

    void read(std::string_view text) {
        switch (imported_.kind) {
        case Kind::points:
            read_points_table(before_end_mark(text, report()), choices_, imported_);
            break;
        case Kind::dxf:
            take_dxf(text);
            break;
        case Kind::svg:
            take_svg(text);
            break;
        case Kind::gcode:
            read_gcode(
                text,
                choices_.tolerance_mm.value_or(choices_.tolerance.value_or(usual_tolerance_mm)),
                choices_, imported_);
            break;
        case Kind::unknown:
            break;
        }
    }

    void take_dxf(std::string_view text) {
        const auto read = [&](double tolerance, Report& to) {
            return read_dxf(text, tolerance, choices_, to);
        };
        take_drawing(read_at_wanted_tolerance(choices_, report(), read));
        if (imported_.unit_mm == 0)
            imported_.asks.push_back(
                {.question = Question::unit, .options = {"mm", "in", "cm", "m"}});
    }

    void take_svg(std::string_view text) {
        bool size_known = false;
        const auto read = [&](double tolerance, Report& to) {
            return read_svg(text, tolerance, to, size_known);
        };
        take_drawing(read_at_wanted_tolerance(choices_, report(), read));
        if (!size_known && !choices_.unit_mm)
            imported_.asks.push_back(
                {.question = Question::unit, .options = {"px/96", "px/90", "px/72", "mm"}});
    }

    void take_drawing(Drawing drawing) {
        take_dots(drawing);
        imported_.unit_mm = unit_of(drawing, choices_);
        const ChainChoices joining{.gap = choices_.gap, .remove_doubles = choices_.remove_doubles};
        imported_.chains = chained(drawing.pieces, joining, drawing.layers, report());
        if (imported_.unit_mm == 0 || imported_.unit_mm == 1)
            return;
        for (Chain& chain : imported_.chains) {
            for (Point& point : chain.points)
                point = imported_.unit_mm * point;
        }
    }

    /// Single points are an outline only where there is nothing else.
    void take_dots(Drawing& drawing) {
        const std::size_t count = drawing.dots.size();
        if (!drawing.pieces.all().empty() || count < 2) {
            if (count > 0)
                report().add(Fact::points_left_out, 0, {}, static_cast<double>(count));
            return;
        }
        report().add(Fact::points_alone, 0);
        drawing.pieces.begin(0, 0);
        for (const Point& dot : drawing.dots)
            drawing.pieces.add(dot);
        drawing.pieces.end(false);
    }

    std::string_view bytes_;
    std::string_view name_;
    const Choices& choices_;
    Imported imported_;
};

} // namespace

Imported import_bytes(std::string_view bytes, std::string_view name, const Choices& choices) {
    return Importer(bytes, name, choices).run();
}

bool is_settled(const Imported& imported) {
    return !imported.chains.empty() && std::ranges::none_of(imported.asks, &Ask::needed);
}

} // namespace velmora::imports
