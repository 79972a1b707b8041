#include "formats/readers.h"

#include "document/feedback.h"
#include "document/number_text.h"
#include "document/session.h"
#include "formats/fixed_record.h"
#include "formats/reader_support.h"
#include "formats/sync_matcher.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

#include <optional>

namespace velmora {

namespace {

FixedRecord next_record(ReadCounts& counts) {
    return FixedRecord(read_record(counts));
}

/// The array grows first, so a point whose text fails stands in it, uncounted.
void take_point(const FixedRecord& record, ReadCounts& counts) {
    Forma.Pto.redim_keep(counts.points);
    Pto& point = Forma.Pto[counts.points];
    point.X = CDbl(record.field1());
    point.Y = CDbl(record.field2());
    ++counts.points;
}

std::int16_t read_slws(std::string_view path, ReadCounts& counts) {
    session.files.open_random(1, path, FixedRecord::length);
    session.Velmora.TxtDescDat = runtime::from_1252(next_record(counts).field1());
    (void)next_record(counts);
    FixedRecord record = next_record(counts);
    Forma.Pto.redim(0);
    do {
        if (record.ends_in_line_feed())
            take_point(record, counts);
        record = next_record(counts);
        DoEvents();
    } while (!session.files.eof(1));
    session.files.close(1);
    drop_closing_point(Forma.Pto, counts.points);
    session.UltimoPto = session.TotalPtos = counts.points + 1;
    show_count(session.wininfo.TxtTotalPtos, session.TotalPtos);
    session.TotalSinc = 0;
    show_count(session.wininfo.TxtTotalCtrlPtos, 0);
    DoEvents();
    return True;
}

/// Nothing but the section's title ends the outline: without it a field that is no number does,
/// through the error route.
void read_sync_outline(ReadCounts& counts) {
    FixedRecord record = next_record(counts);
    Forma.Pto.redim(0);
    do {
        take_point(record, counts);
        record = next_record(counts);
        show_count(session.wininfo.TxtTotalPtos, counts.points);
        DoEvents();
    } while (record.field1().find(sync_section_mark) == std::string_view::npos);
}

/// The total is shown only when a record matches: without one the earlier figure stays.
void match_sync_records(ReadCounts& counts) {
    std::optional<SyncMatcher> matcher;
    std::int64_t total = 0;
    do {
        const FixedRecord record = next_record(counts);
        if (record.blank())
            continue;
        const double x = CDbl(record.field1());
        const double y = CDbl(record.field2());
        if (!matcher)
            matcher.emplace(Forma.Pto);
        const std::int32_t marked = matcher->mark(x, y);
        total += marked;
        if (marked > 0)
            show_count(session.wininfo.TxtTotalCtrlPtos, total);
        DoEvents();
    } while (!session.files.eof(1));
}

std::int16_t read_slwsinc(std::string_view path, ReadCounts& counts) {
    session.files.open_random(1, path, FixedRecord::length);
    session.Velmora.TxtDescDat = runtime::from_1252(next_record(counts).field2());
    (void)next_record(counts);
    read_sync_outline(counts);
    drop_closing_point(Forma.Pto, counts.points);
    session.UltimoPto = session.TotalPtos = counts.points;
    show_count(session.wininfo.TxtTotalPtos, counts.points);
    (void)next_record(counts);
    match_sync_records(counts);
    session.TotalSinc = runtime::to_int32(runtime::Val(session.wininfo.TxtTotalCtrlPtos));
    session.files.close(1);
    return True;
}

} // namespace

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
