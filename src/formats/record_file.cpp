#include "formats/record_file.h"

#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/loading.h"
#include "runtime/paths.h"

namespace velmora {

FixedRecord next_record(ReadCounts& counts) {
    return FixedRecord(read_record(counts));
}

void take_point(const FixedRecord& record, Array<Pto>& points, std::int32_t& count) {
    points.redim_keep(count);
    Pto& point = points[count];
    point.X = CDbl(record.field1());
    point.Y = CDbl(record.field2());
    ++count;
}

void open_records_anew(std::string_view path) {
    if (runtime::file_exists(path)) {
        state::loading.files.open_output(1, path);
        state::loading.files.close(1);
    }
    state::loading.files.open_random(1, path, FixedRecord::length);
}

void write_record(const FixedRecord& record) {
    state::loading.files.write(1, record.bytes());
}

} // namespace velmora
