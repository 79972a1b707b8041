#include "formats/slwsinc.h"

#include "document/feedback.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/loading.h"
#include "formats/record_file.h"
#include "formats/sync_matcher.h"

#include <optional>

namespace velmora {

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

} // namespace velmora
