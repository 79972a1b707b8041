#include "cutprep/side_readers.h"

#include "cutprep/side_totals.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/pointer_shape.h"
#include "document/shown.h"
#include "document/state/document.h"
#include "document/state/loading.h"
#include "document/state/program.h"
#include "formats/coordinate_limit.h"
#include "formats/file_format.h"
#include "formats/fixed_record_readers.h"
#include "formats/free_text_readers.h"
#include "formats/reader_support.h"
#include "formats/reading.h"
#include "formats/record_file.h"
#include "formats/sync_matcher.h"
#include "platform/dialogs.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

namespace {

void report(const ReaderName& name, const RuntimeError& failure, const ReadCounts& counts) {
    state::loading.files.abandon(1);
    show_reader_error(name, failure, counts.lines);
}

/// UltimoPto keeps the count with the closing point, on purpose.
void close_outline(Array<Pto>& pts, const SideTotals& totals, ReadCounts& counts) {
    state::document.UltimoPto = counts.points;
    show_count(totals.points, counts.points);
    drop_closing_point(pts, counts.points);
    show_count(totals.points, counts.points);
}

void read_slwsinc(std::string_view path, Array<Pto>& pts, const SideTotals& totals,
                  ReadCounts& counts) {
    state::loading.files.open_random(1, path, FixedRecord::length);
    (void)next_record(counts);
    (void)next_record(counts);
    read_slwsinc_outline(pts, totals.points, counts);
    close_outline(pts, totals, counts);
    match_slwsinc_sync_points(pts, totals.sync_points, counts);
    state::loading.files.close(1);
}

/// The search as far as the document in the main window reaches.
class DocumentLongSearch {
  public:
    DocumentLongSearch(Array<Pto>& pts, const SideTotals& totals) : pts_(pts), totals_(totals) {}

    void mark(double X, double Y) {
        const std::int32_t last = Forma.Pto.upper();
        if (!matcher_)
            matcher_.emplace(pts_, std::min(last, pts_.upper()));
        const std::int32_t marked = matcher_->mark(X, Y);
        total_ += marked;
        if (marked > 0)
            show_count(totals_.sync_points, total_);
        if (last > pts_.upper())
            raise(error::subscript);
    }

  private:
    Array<Pto>& pts_;
    const SideTotals& totals_;
    std::optional<SyncMatcher> matcher_;
    std::int64_t total_ = 0;
};

Pass read_slwmd(std::string_view path, Array<Pto>& pts, const SideTotals& totals,
                ReadCounts& counts, CoordinateLimit& limit) {
    state::loading.files.open_input(1, path);
    (void)read_line(counts);
    (void)read_line(counts);
    if (!read_slwmd_outline(pts, counts, limit))
        return Pass::over_limit;
    close_outline(pts, totals, counts);
    DocumentLongSearch search(pts, totals);
    read_slwmd_sync_points(counts, [&](double X, double Y) { search.mark(X, Y); });
    state::loading.files.close(1);
    return Pass::complete;
}

void refuse(std::string_view path) {
    MsgBox(joined_by_blanks({GetMensaje(message::the_file), path, GetMensaje(message::not_loaded)}),
           buttons::critical, box_title());
    set_pointer(pointer::standard);
}

} // namespace

void CargaSLWSINC2(std::string_view fichero, Array<Pto>& pts, std::string_view lado, Flag& ok) {
    const SideTotals totals = totals_of(lado);
    ReadCounts counts;
    ok = False;
    trap(
        [&] {
            read_slwsinc(fichero, pts, totals, counts);
            ok = True;
        },
        [&](const RuntimeError& failure) { report({"CargaSLWSINC2"}, failure, counts); });
}

void CargaSLWMD_a(std::string_view fichero, Array<Pto>& pts, std::string_view lado, Flag& ok) {
    const SideTotals totals = totals_of(lado);
    ReadCounts counts;
    ok = False;
    trap(
        [&] {
            ok = read_within_limit(fichero, pts, counts, [&](CoordinateLimit& limit) {
                return read_slwmd(fichero, pts, totals, counts, limit);
            });
        },
        [&](const RuntimeError& failure) { report({"CargaSLWMD_a"}, failure, counts); });
}

bool read_side(const Side& side, const std::string& path) {
    if (!may_be_read(path))
        return false;
    Flag ok = False;
    switch (GetFileFormat(path, runtime::UCase(path))) {
    case FileFormat::SLWSINC:
        CargaSLWSINC2(path, side.Ptos, side.lado, ok);
        break;
    case FileFormat::SLWMD:
        CargaSLWMD_a(path, side.Ptos, side.lado, ok);
        break;
    default:
        refuse(path);
    }
    return ok != False;
}

} // namespace velmora
