#include "formats/record_file.h"

#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/loading.h"

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

void write_record(const FixedRecord& record) {
    state::loading.files.write(1, record.bytes());
}

} // namespace velmora
