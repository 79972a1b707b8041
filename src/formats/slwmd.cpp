#include "formats/slwmd.h"

#include "document/feedback.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/loading.h"
#include "formats/fixed_record.h"
#include "formats/point_lines.h"

namespace velmora {

bool read_slwmd_outline(Array<Pto>& points, ReadCounts& counts, CoordinateLimit& limit) {
    std::string room;
    std::string_view line = read_line(counts);
    points.redim(0);
    do {
        const auto text = point_of_line(line, room);
        if (text && !take_point(*text, points, counts.points, limit))
            return false;
        DoEvents();
        line = read_line(counts);
    } while (line.find(sync_section_mark) == std::string_view::npos);
    return true;
}

void read_slwmd_sync_points(ReadCounts& counts, const std::function<void(double, double)>& place) {
    std::string room;
    read_line(counts);
    while (!state::loading.files.eof(1)) {
        if (const auto text = point_of_line(read_line(counts), room)) {
            const double X = CDbl(text->X);
            place(X, CDbl(text->Y));
        }
        DoEvents();
    }
}

} // namespace velmora
