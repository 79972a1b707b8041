#include "cutprep/side_writer.h"

#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/loading.h"
#include "formats/files.h"
#include "formats/record_file.h"
#include "runtime/paths.h"

namespace velmora {

namespace {

FixedRecord record_of(const Pto& point) {
    return {CStr(point.X), CStr(point.Y)};
}

/// The doubled joints of copied runs go. Equality is that of the fields' text, and a first point of
/// -999 is taken for a repeat, on purpose.
void write_outline(const Array<Pto>& points) {
    FixedRecord last("-999", "-999");
    for (std::int32_t i = 0; i <= points.upper(); ++i) {
        const FixedRecord record = record_of(points[i]);
        if (record.bytes() == last.bytes())
            continue;
        write_record(record);
        last = record;
    }
}

void write_sync_points(const Array<Pto>& points, bool all) {
    for (std::int32_t i = 0; i <= points.upper(); ++i)
        if (all || points[i].Sinc == 1)
            write_record(record_of(points[i]));
}

void write_records(const Side& side, bool all_sync) {
    open_records_anew(side.Txt_File2);
    write_record({"Fichero DAT(KMR)2002", "corrpoltrap"});
    write_record({"SLATEWORKS", ""});
    write_outline(side.Ptos2);
    write_record(record_of(side.Ptos2[0]));
    write_record({sync_section_title, ""});
    write_record({"", ""});
    write_sync_points(side.Ptos2, all_sync);
    state::loading.files.close(1);
}

} // namespace

void remove_earlier_result(const Side& side) {
    if (runtime::file_exists(side.Txt_File2))
        BorraFichero(side.Txt_File2);
}

void write_result(const Side& side, bool all_sync) {
    write_or_make_room(side.Txt_File2, [&] { write_records(side, all_sync); });
    SetDotDecimals(side.Txt_File2);
}

} // namespace velmora
