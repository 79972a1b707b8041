#include "formats/readers.h"

#include "document/feedback.h"
#include "document/session.h"
#include "formats/reader_support.h"
#include "formats/record_file.h"
#include "formats/slwsinc.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace velmora {

namespace {

std::int16_t read_slws(std::string_view path, ReadCounts& counts) {
    session.files.open_random(1, path, FixedRecord::length);
    session.Velmora.TxtDescDat = runtime::from_1252(next_record(counts).field1());
    (void)next_record(counts);
    FixedRecord record = next_record(counts);
    Forma.Pto.redim(0);
    do {
        if (record.ends_in_line_feed())
            take_point(record, Forma.Pto, counts.points);
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

std::int16_t read_slwsinc(std::string_view path, ReadCounts& counts) {
    session.files.open_random(1, path, FixedRecord::length);
    session.Velmora.TxtDescDat = runtime::from_1252(next_record(counts).field2());
    (void)next_record(counts);
    read_slwsinc_outline(Forma.Pto, session.wininfo.TxtTotalPtos, counts);
    drop_closing_point(Forma.Pto, counts.points);
    session.UltimoPto = session.TotalPtos = counts.points;
    show_count(session.wininfo.TxtTotalPtos, counts.points);
    match_slwsinc_sync_points(Forma.Pto, session.wininfo.TxtTotalCtrlPtos, counts);
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
