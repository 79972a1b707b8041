#include "formats/fixed_record_readers.h"

#include "document/feedback.h"
#include "document/flag.h"
#include "document/number_text.h"
#include "document/shown.h"
#include "document/state/loading.h"
#include "document/windows/velmora.h"
#include "document/windows/wininfo.h"
#include "formats/record_file.h"
#include "formats/sync_matcher.h"
#include "formats/totals.h"
#include "runtime/text.h"

#include <optional>

namespace velmora {

namespace {

std::int16_t read_slws(std::string_view path, ReadCounts& counts) {
    state::loading.files.open_random(1, path, FixedRecord::length);
    state::Velmora.TxtDescDat = runtime::from_1252(next_record(counts).field1());
    (void)next_record(counts);
    FixedRecord record = next_record(counts);
    Forma.Pto.redim(0);
    do {
        if (record.ends_in_line_feed())
            take_point(record, Forma.Pto, counts.points);
        record = next_record(counts);
        DoEvents();
    } while (!state::loading.files.eof(1));
    state::loading.files.close(1);
    drop_closing_point(Forma.Pto, counts.points);
    publish_totals(Totals::all, counts.points + 1);
    DoEvents();
    return True;
}

std::int16_t read_slwsinc(std::string_view path, ReadCounts& counts) {
    state::loading.files.open_random(1, path, FixedRecord::length);
    state::Velmora.TxtDescDat = runtime::from_1252(next_record(counts).field2());
    (void)next_record(counts);
    read_slwsinc_outline(Forma.Pto, state::wininfo.TxtTotalPtos, counts);
    drop_closing_point(Forma.Pto, counts.points);
    publish_totals(Totals::points, counts.points);
    match_slwsinc_sync_points(Forma.Pto, state::wininfo.TxtTotalCtrlPtos, counts);
    shown::TotalSinc().keep_shown();
    state::loading.files.close(1);
    return True;
}

} // namespace

void read_slwsinc_outline(Array<Pto>& points, std::string& total_box, ReadCounts& counts) {
    FixedRecord record = next_record(counts);
    points.redim(0);
    do {
        take_point(record, points, counts.points);
        record = next_record(counts);
        show_count(total_box, counts.points);
        DoEvents();
    } while (record.field1().find(sync_section_mark) == std::string_view::npos);
}

void match_slwsinc_sync_points(Array<Pto>& points, std::string& total_box, ReadCounts& counts) {
    std::optional<SyncMatcher> matcher;
    std::int64_t total = 0;
    (void)next_record(counts);
    do {
        const FixedRecord record = next_record(counts);
        if (record.blank())
            continue;
        const double x = CDbl(record.field1());
        const double y = CDbl(record.field2());
        if (!matcher)
            matcher.emplace(points);
        const std::int32_t marked = matcher->mark(x, y);
        total += marked;
        if (marked > 0)
            show_count(total_box, total);
        DoEvents();
    } while (!state::loading.files.eof(1));
}

std::int16_t CargaSLWS(std::string_view path) {
    ReadCounts counts;
    return read_asking({"CargaSLWS", "  -   En Linea: "}, counts,
                       [&] { return read_slws(path, counts); });
}

std::int16_t CargaSLWSINC(std::string_view path) {
    ReadCounts counts;
    return read_asking({"CargaSLWSINC"}, counts, [&] { return read_slwsinc(path, counts); });
}

} // namespace velmora
