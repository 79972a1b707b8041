#include "formats/free_text_readers.h"

#include "document/feedback.h"
#include "document/number_text.h"
#include "document/state/loading.h"
#include "document/windows/velmora.h"
#include "formats/fixed_record.h"
#include "formats/point_lines.h"
#include "formats/sync_matcher.h"
#include "formats/totals.h"
#include "runtime/text.h"

#include <optional>
#include <string>

namespace velmora {

namespace {

/// The closing test of the readers that pass over it when there is no point.
void drop_closing_point_if_any(ReadCounts& counts) {
    if (counts.points > 0)
        drop_closing_point(Forma.Pto, counts.points);
}

void mark_slwmd_sync_points(ReadCounts& counts) {
    std::optional<SyncMatcher> matcher;
    read_slwmd_sync_points(counts, [&](double X, double Y) {
        if (!matcher)
            matcher.emplace(Forma.Pto);
        matcher->mark(X, Y);
    });
}

/// TotalPtos, TotalSinc and their boxes keep what they were; the closing point goes, but stays in
/// the count.
Pass read_slwmd(std::string_view path, ReadCounts& counts, CoordinateLimit& limit) {
    state::loading.files.open_input(1, path);
    state::Velmora.TxtDescDat = runtime::from_1252(read_line(counts));
    read_line(counts);
    if (!read_slwmd_outline(Forma.Pto, counts, limit))
        return Pass::over_limit;
    publish_totals(Totals::last_point, counts.points - 1);
    drop_closing_point(Forma.Pto, counts.points);
    mark_slwmd_sync_points(counts);
    state::loading.files.close(1);
    return Pass::complete;
}

Pass read_noslw(std::string_view path, ReadCounts& counts, CoordinateLimit& limit) {
    std::string room;
    state::loading.files.open_input(1, path);
    Forma.Pto.redim(0);
    while (!state::loading.files.eof(1)) {
        const auto text = point_of_line(read_line(counts), room);
        if (text && !take_point(*text, Forma.Pto, counts.points, limit))
            return Pass::over_limit;
        DoEvents();
    }
    drop_closing_point_if_any(counts);
    publish_totals(Totals::sync_box, counts.points - 1);
    state::loading.files.close(1);
    return Pass::complete;
}

/// The surfaces of a PROFILI file: the upper one goes to Forma at once, the lower one waits.
class ProfiliSurfaces {
  public:
    ProfiliSurfaces(ReadCounts& counts, CoordinateLimit& limit) : counts_(counts), limit_(limit) {
        Forma.Pto.redim(0);
        lower_.redim(0);
    }

    [[nodiscard]] bool take_line(std::string_view line) {
        if (!in_lower_ && line.find("ower X") != std::string_view::npos) {
            in_lower_ = true;
            return true;
        }
        const auto text = point_of_line(line, room_);
        if (!text)
            return true;
        return in_lower_ ? take_point(*text, lower_, lower_count_, limit_)
                         : take_point(*text, Forma.Pto, counts_.points, limit_);
    }

    /// Backwards and without its ends, which are the edges that the upper surface has already.
    void append_lower() {
        for (std::int32_t i = lower_.upper() - 1; i >= 1; --i) {
            Forma.Pto.redim_keep(counts_.points);
            Forma.Pto[counts_.points] = lower_[i];
            ++counts_.points;
        }
    }

  private:
    ReadCounts& counts_;
    CoordinateLimit& limit_;
    Array<Pto> lower_;
    std::int32_t lower_count_ = 0;
    bool in_lower_ = false;
    std::string room_;
};

Pass read_profili(std::string_view path, ReadCounts& counts, CoordinateLimit& limit) {
    constexpr int header_lines = 3;
    state::loading.files.open_input(1, path);
    for (int line = 0; line < header_lines; ++line)
        read_line(counts);
    ProfiliSurfaces surfaces(counts, limit);
    while (!state::loading.files.eof(1)) {
        if (!surfaces.take_line(read_line(counts)))
            return Pass::over_limit;
        DoEvents();
    }
    surfaces.append_lower();
    state::loading.files.close(1);
    drop_closing_point_if_any(counts);
    publish_totals(Totals::sync_box, counts.points - 1);
    return Pass::complete;
}

using ReadPass = Pass (*)(std::string_view path, ReadCounts& counts, CoordinateLimit& limit);

/// Into the document, by as many passes as the limit asks for.
std::int16_t within_limit(ReadPass pass, std::string_view path, std::string_view shown_path,
                          ReadCounts& counts) {
    return read_within_limit(shown_path, Forma.Pto, counts,
                             [&](CoordinateLimit& limit) { return pass(path, counts, limit); });
}

} // namespace

bool read_slwmd_outline(Array<Pto>& points, ReadCounts& counts, CoordinateLimit& limit) {
    std::string room;
    std::string_view line = read_line(counts);
    points.redim(0);
    do {
        const auto text = point_of_line(line, room);
        if (text && !take_point(*text, points, counts.points, limit))
            return false;
        DoEvents();
        line = read_line(counts);
    } while (line.find(sync_section_mark) == std::string_view::npos);
    return true;
}

void read_slwmd_sync_points(ReadCounts& counts, const std::function<void(double, double)>& place) {
    std::string room;
    read_line(counts);
    while (!state::loading.files.eof(1)) {
        if (const auto text = point_of_line(read_line(counts), room)) {
            const double X = CDbl(text->X);
            place(X, CDbl(text->Y));
        }
        DoEvents();
    }
}

std::int16_t CargaSLWMD(std::string_view path) {
    return CargaSLWMD(path, path);
}

std::int16_t CargaSLWMD(std::string_view path, std::string_view shown_path) {
    ReadCounts counts;
    return read_refusing({"CargaSLWMD"}, counts,
                         [&] { return within_limit(read_slwmd, path, shown_path, counts); });
}

std::int16_t CargaNOSLW(std::string_view path) {
    return CargaNOSLW(path, path);
}

std::int16_t CargaNOSLW(std::string_view path, std::string_view shown_path) {
    ReadCounts counts;
    return read_asking({"CargaNOSLW"}, counts,
                       [&] { return within_limit(read_noslw, path, shown_path, counts); });
}

std::int16_t CargaPROFILI(std::string_view path) {
    return CargaPROFILI(path, path);
}

std::int16_t CargaPROFILI(std::string_view path, std::string_view shown_path) {
    ReadCounts counts;
    return read_asking({"CargaPROFILI"}, counts,
                       [&] { return within_limit(read_profili, path, shown_path, counts); });
}

} // namespace velmora
