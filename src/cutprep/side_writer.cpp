#include "cutprep/side_writer.h"

#include "document/number_text.h"
#include "document/state/loading.h"
#include "formats/draft.h"
#include "formats/file_passes.h"
#include "formats/open_number.h"
#include "formats/record_file.h"
#include "runtime/error.h"

#include <optional>
#include <string>

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

void write_records(const Array<Pto>& points, bool all_sync, const std::string& path) {
    state::loading.files.open_random(1, path, FixedRecord::length);
    const OpenNumber file(1);
    write_record({"Fichero DAT(KMR)2002", "corrpoltrap"});
    write_record({"SLATEWORKS", ""});
    write_outline(points);
    write_record(record_of(points[0]));
    write_record({sync_section_title, ""});
    write_record({"", ""});
    write_sync_points(points, all_sync);
    state::loading.files.close(1);
}

void write_whole(const Array<Pto>& points, bool all_sync, const Draft& draft) {
    write_records(points, all_sync, draft.path());
    SetDotDecimals(draft.path());
}

} // namespace

void write_results(const Result& first, const Result& second, bool all_sync) {
    Draft one(first.path);
    write_whole(first.points, all_sync, one);
    std::optional<Draft> other;
    trap(
        [&] {
            other.emplace(second.path);
            write_whole(second.points, all_sync, *other);
        },
        [&](const RuntimeError&) {
            one.take_place();
            throw;
        });
    one.retire_target();
    other->retire_target();
    one.take_name();
    other->take_name();
}

} // namespace velmora
