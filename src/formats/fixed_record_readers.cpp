#include "document/flag.h"
#include "document/forma.h"
#include "document/state/document.h"
#include "document/state/loading.h"
#include "document/windows/velmora.h"
#include "document/windows/wininfo.h"
#include "formats/readers.h"

#include "document/feedback.h"
#include "formats/reader_support.h"
#include "formats/record_file.h"
#include "formats/slwsinc.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

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
    state::document.UltimoPto = state::document.TotalPtos = counts.points + 1;
    show_count(state::wininfo.TxtTotalPtos, state::document.TotalPtos);
    state::document.TotalSinc = 0;
    show_count(state::wininfo.TxtTotalCtrlPtos, 0);
    DoEvents();
    return True;
}

std::int16_t read_slwsinc(std::string_view path, ReadCounts& counts) {
    state::loading.files.open_random(1, path, FixedRecord::length);
    state::Velmora.TxtDescDat = runtime::from_1252(next_record(counts).field2());
    (void)next_record(counts);
    read_slwsinc_outline(Forma.Pto, state::wininfo.TxtTotalPtos, counts);
    drop_closing_point(Forma.Pto, counts.points);
    state::document.UltimoPto = state::document.TotalPtos = counts.points;
    show_count(state::wininfo.TxtTotalPtos, counts.points);
    match_slwsinc_sync_points(Forma.Pto, state::wininfo.TxtTotalCtrlPtos, counts);
    state::document.TotalSinc = runtime::to_int32(runtime::Val(state::wininfo.TxtTotalCtrlPtos));
    state::loading.files.close(1);
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
