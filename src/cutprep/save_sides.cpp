#include "cutprep/save_sides.h"

#include "cutprep/side.h"
#include "document/feedback.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/loading.h"
#include "document/windows/ajuste.h"
#include "formats/files.h"
#include "formats/record_file.h"
#include "runtime/paths.h"

#include <string>

namespace velmora {

namespace {

constexpr int kHourglass = 11;
constexpr int kDefaultPointer = 0;

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

void write_sync_points(const Array<Pto>& points) {
    for (std::int32_t i = 0; i <= points.upper(); ++i)
        if (state::ajuste.ChkPtosCtrl || points[i].Sinc == 1)
            write_record(record_of(points[i]));
}

void write_records(const Side& side) {
    open_records_anew(side.Txt_File2);
    write_record({"Fichero DAT(KMR)2002", "corrpoltrap"});
    write_record({"SLATEWORKS", ""});
    write_outline(side.Ptos2);
    write_record(record_of(side.Ptos2[0]));
    write_record({sync_section_title, ""});
    write_record({"", ""});
    write_sync_points(side.Ptos2);
    state::loading.files.close(1);
}

void write_side(const Side& side) {
    write_or_make_room(side.Txt_File2, [&side] { write_records(side); });
    SetDotDecimals(side.Txt_File2);
}

void remove_earlier(const std::string& path) {
    if (runtime::file_exists(path))
        BorraFichero(path);
}

} // namespace

void Cmd_save_Click() {
    const Side A = side_of("A");
    const Side B = side_of("B");
    state::ajuste.cmd_exit_enabled = false;
    set_pointer(kHourglass);
    remove_earlier(A.Txt_File2);
    remove_earlier(B.Txt_File2);
    write_side(A);
    write_side(B);
    set_pointer(kDefaultPointer);
    state::ajuste.cmd_exit_enabled = true;
}

} // namespace velmora
