// Fixed records through file 1, in and out.
#pragma once

#include "document/forma.h"
#include "formats/fixed_record.h"
#include "formats/reader_support.h"

#include <cstdint>
#include <string_view>

namespace velmora {

/// The next record, counted once it was read.
[[nodiscard]] FixedRecord next_record(ReadCounts& counts);

/// Grows the outline to index `count`, stores the record's two numbers there and counts the point.
/// A field that fails raises 13 or 6 with the point in the array, zero or with its X alone, and not
/// counted.
void take_point(const FixedRecord& record, Array<Pto>& points, std::int32_t& count);

/// To file 1.
void write_record(const FixedRecord& record);

} // namespace velmora
