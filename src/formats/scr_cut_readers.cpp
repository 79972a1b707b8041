#include "formats/scr_cut_readers.h"

#include "document/feedback.h"
#include "document/forma.h"
#include "document/separator.h"
#include "document/state/loading.h"
#include "formats/coordinate_limit.h"
#include "formats/point_lines.h"
#include "formats/reader_support.h"
#include "formats/totals.h"
#include "runtime/error.h"
#include "runtime/text.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

namespace {

/// A point whose numbers are written with "."; their texts are brought to the machine's separator
/// one by one, so that what is between them is not converted.
class DottedPoints {
  public:
    DottedPoints(ReadCounts& counts, CoordinateLimit& limit) : counts_(counts), limit_(limit) {}

    [[nodiscard]] bool take(const PointText& text) {
        const PointText converted{point_to_machine_separator(text.X, room_x_),
                                  point_to_machine_separator(text.Y, room_y_)};
        return take_point(converted, Forma.Pto, counts_.points, limit_);
    }

  private:
    ReadCounts& counts_;
    CoordinateLimit& limit_;
    std::string room_x_;
    std::string room_y_;
};

/// The two texts of a script's line, cut at its first comma; nothing for a line that is skipped.
std::optional<PointText> point_of_script_line(std::string_view line) {
    const std::string_view trimmed = runtime::Trim(line);
    const std::size_t comma = trimmed.find(',');
    if (comma == std::string_view::npos)
        return std::nullopt;
    const PointText text{runtime::Trim(trimmed.substr(0, comma)),
                         runtime::Trim(trimmed.substr(comma + 1))};
    return begins_like_number(text.X) ? std::optional(text) : std::nullopt;
}

/// A script that is refused leaves its file open, on purpose: the next use of file 1 meets that.
Pass read_scr(std::string_view path, ReadCounts& counts, CoordinateLimit& limit) {
    state::loading.files.open_input(1, path);
    Forma.Pto.redim(0);
    if (runtime::Trim(read_line(counts)) != "pline")
        return Pass::refused;
    DottedPoints points(counts, limit);
    while (!state::loading.files.eof(1)) {
        const auto text = point_of_script_line(read_line(counts));
        if (text && !points.take(*text))
            return Pass::over_limit;
        DoEvents();
    }
    drop_closing_point(Forma.Pto, counts.points);
    publish_totals(Totals::sync_box, counts.points - 1);
    state::loading.files.close(1);
    return Pass::complete;
}

/// The text between a label of three characters and the next label. A line without the first label
/// is taken from its third character on, one without the next raises 5.
std::string_view labelled(std::string_view line, std::string_view label,
                          std::string_view next_label) {
    const std::size_t at = line.find(label);
    const std::size_t start = at == std::string_view::npos ? 2 : at + label.size();
    const std::string_view rest = line.substr(std::min(start, line.size()));
    const std::size_t end = rest.find(next_label);
    if (end == std::string_view::npos)
        raise(error::invalid_call);
    return runtime::Trim(rest.substr(0, end));
}

/// The left side of the machine; the values of the right side are ignored. The totals and their
/// boxes keep what they were.
Pass read_cut(std::string_view path, ReadCounts& counts, CoordinateLimit& limit) {
    state::loading.files.open_input(1, path);
    Forma.Pto.redim(0);
    DottedPoints points(counts, limit);
    while (!state::loading.files.eof(1)) {
        const std::string_view line = read_line(counts);
        if (!points.take({labelled(line, "XG:", "YG:"), labelled(line, "YG:", "XD:")}))
            return Pass::over_limit;
        DoEvents();
    }
    drop_closing_point(Forma.Pto, counts.points);
    publish_totals(Totals::last_point, counts.points - 1);
    state::loading.files.close(1);
    return Pass::complete;
}

} // namespace

bool is_script_point(std::string_view line) {
    return point_of_script_line(line).has_value();
}

std::int16_t CargaSCR(std::string_view path) {
    ReadCounts counts;
    return read_asking({"CargaSCR"}, counts, [&] {
        return read_within_limit(path, Forma.Pto, counts, [&](CoordinateLimit& limit) {
            return read_scr(path, counts, limit);
        });
    });
}

std::int16_t CargaCUT(std::string_view path) {
    ReadCounts counts;
    return read_asking({"CargaCUT", "  -  En Linea: "}, counts, [&] {
        return read_within_limit(path, Forma.Pto, counts, [&](CoordinateLimit& limit) {
            return read_cut(path, counts, limit);
        });
    });
}

} // namespace velmora
