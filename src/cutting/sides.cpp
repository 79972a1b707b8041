#include "cutting/sides.h"

#include "formats/fixed_record.h"
#include "formats/sync_matcher.h"
#include "import/number_text.h"
#include "import/text.h"
#include "runtime/error.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace velmora::cutting {

namespace {

constexpr std::size_t lines_of_head = 2;

using Fields = std::pair<std::string_view, std::string_view>;

/// By the places of a record; where the line is none, at its first blank.
Fields fields_of(std::string_view line) {
    const std::string_view first = imports::trimmed(line.substr(0, FixedRecord::field_length));
    const bool is_record = line.size() > FixedRecord::field_length &&
                           first.find_first_of(" \t") == std::string_view::npos;
    if (is_record)
        return {first, imports::trimmed(line.substr(FixedRecord::field_length))};
    const std::string_view whole = imports::trimmed(line);
    const std::size_t blank = std::min(whole.find_first_of(" \t"), whole.size());
    return {whole.substr(0, blank), imports::trimmed(whole.substr(blank))};
}

SideFault take_field(std::string_view text, double& value) {
    SideFault fault = SideFault::none;
    trap([&] { value = runtime::CDbl(text, '.'); },
         [&](const RuntimeError& failure) {
             fault =
                 failure.number == error::overflow ? SideFault::too_large : SideFault::bad_number;
         });
    if (fault == SideFault::none && !(std::abs(value) <= imports::largest_number))
        return SideFault::too_large;
    return fault;
}

class SideReader {
  public:
    explicit SideReader(std::string_view bytes) : lines_(bytes) {}

    SideFile read() {
        skip_head();
        read_outline();
        if (file_.fault == SideFault::none && in_sync_points_)
            read_sync_points();
        file_.path = side_path(outline_);
        return std::move(file_);
    }

  private:
    void skip_head() {
        std::string_view line;
        for (std::size_t i = 0; i < lines_of_head && lines_.next(line); ++i)
            continue;
    }

    void read_outline() {
        std::string_view line;
        while (!in_sync_points_ && file_.fault == SideFault::none && lines_.next(line)) {
            if (line.find(sync_section_mark) != std::string_view::npos)
                in_sync_points_ = true;
            else if (!imports::trimmed(line).empty())
                take(line, [this](double X, double Y) { outline_.append({.X = X, .Y = Y}); });
        }
        if (file_.fault == SideFault::none && outline_.size() == 0)
            file_.fault = SideFault::no_outline;
        drop_closing_point();
    }

    void drop_closing_point() {
        if (outline_.size() > 1 && same_place(outline_[0], outline_[outline_.upper()]))
            outline_.redim_keep(outline_.upper() - 1);
    }

    void read_sync_points() {
        SyncMatcher matcher(outline_);
        std::string_view line;
        while (file_.fault == SideFault::none && lines_.next(line)) {
            if (imports::trimmed(line).empty())
                continue;
            take(line, [&](double X, double Y) {
                if (matcher.mark(X, Y) == 0)
                    ++file_.unmatched;
            });
        }
    }

    template <class Use>
    void take(std::string_view line, Use&& use) {
        double X = 0;
        double Y = 0;
        const auto [first, second] = fields_of(line);
        file_.fault = std::max(take_field(first, X), take_field(second, Y));
        if (file_.fault == SideFault::none)
            return use(X, Y);
        file_.line = lines_.number();
    }

    imports::Lines lines_;
    SideFile file_;
    Array<Pto> outline_;
    bool in_sync_points_ = false;
};

} // namespace

bool are_paired(const Sides& sides) {
    return sides.paired && sides.A.points.size() == sides.B.points.size() &&
           sides.A.points.size() >= 2;
}

SidePath side_path(const Array<Pto>& points) {
    SidePath path;
    path.points.reserve(points.size());
    for (const Pto& point : points.all()) {
        if (point.Sinc == 1)
            path.sync.push_back(path.points.size());
        path.points.push_back({point.X, point.Y});
    }
    return path;
}

SideFile read_side_file(std::string_view bytes) {
    return SideReader(bytes).read();
}

SidesFile sides_of_program(const imports::Imported& program) {
    if (program.kind != imports::Kind::gcode || program.chains.size() != 2)
        return {.fault = SideFault::no_two_sides};
    SidesFile file;
    file.sides.A.points = program.chains[0].points;
    file.sides.B.points = program.chains[1].points;
    file.sides.closed = program.chains[0].closed;
    return file;
}

} // namespace velmora::cutting
