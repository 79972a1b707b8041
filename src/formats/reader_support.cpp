#include "formats/reader_support.h"

#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/state/loading.h"
#include "formats/totals.h"
#include "platform/dialogs.h"

#include <string>

namespace velmora {

namespace {

std::int16_t empty_document() {
    Forma.Pto.redim(0);
    publish_totals(Totals::last_point, 0);
    return False;
}

/// A point whose text failed is half read and comes after the whole ones: it would be cut as it is.
void cut_to_whole_points(std::int32_t points) {
    if (points > 0)
        Forma.Pto.redim_keep(points - 1);
    else
        Forma.Pto.redim(0);
}

std::int16_t keep_points_so_far(std::int32_t points) {
    cut_to_whole_points(points);
    publish_totals(Totals::all, points);
    return True;
}

} // namespace

std::string_view read_line(ReadCounts& counts) {
    // Lines that are passed over, however many, leave the user his way out.
    constexpr std::int32_t many = 1024;
    if (counts.lines % many == many - 1)
        DoEvents();
    const std::string_view line = state::loading.files.line_input(1);
    ++counts.lines;
    return line;
}

std::string_view read_record(ReadCounts& counts) {
    const std::string_view record = state::loading.files.read_record(1);
    ++counts.lines;
    return record;
}

void drop_closing_point(Array<Pto>& points, std::int32_t& count) {
    if (!same_place(points[0], points[count - 1]))
        return;
    points.redim_keep(points.upper() - 1);
    --count;
}

void show_reader_error(const ReaderName& name, const RuntimeError& failure, std::int32_t lines) {
    const std::string prefix = "Error " + std::string(name.routine) + "  nº: ";
    show_trap(prefix, failure, std::string(name.line_label) + std::to_string(lines));
}

std::int16_t ask_cancel_load(const ReaderName& name, const RuntimeError& failure,
                             const ReadCounts& counts) {
    state::loading.files.abandon(1);
    show_reader_error(name, failure, counts.lines);
    const int reply = MsgBox("Cancel Load?", buttons::yes_no + buttons::critical);
    return reply == answer::yes ? empty_document() : keep_points_so_far(counts.points);
}

std::int16_t refuse_load(const ReaderName& name, const RuntimeError& failure,
                         const ReadCounts& counts) {
    state::loading.files.abandon(1);
    show_reader_error(name, failure, counts.lines);
    return empty_document();
}

} // namespace velmora
