#include "formats/outline_writer.h"

#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/state/document.h"
#include "document/state/loading.h"
#include "document/state/options.h"
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "formats/draft.h"
#include "formats/file_passes.h"
#include "formats/open_number.h"
#include "formats/record_file.h"
#include "formats/sync_dat.h"
#include "platform/dialogs.h"
#include "runtime/paths.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <algorithm>

namespace velmora {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

/// The bar of the main window, one step a point; what is written past the points leaves it full.
void step_progress() {
    ProgressBar& bar = state::Velmora.Pbar1;
    bar.Value = std::min(bar.Value + 1, bar.Max);
    DoEvents();
}

/// All points, then the first once more: the outline is open in memory and closed in a file.
template <class Write>
void write_closed_outline(Write&& write) {
    const std::int32_t upper = Forma.Pto.upper();
    for (std::int32_t i = 0; i <= upper; ++i)
        write(Forma.Pto[i]);
    write(Forma.Pto[0]);
}

/// Sync points are needed: without one, point 0 becomes it or the form is refused.
bool ensure_sync_point() {
    if (HayPuntosSinc())
        return true;
    if (MuestraMensaje(message::add_origin_sync) != answer::ok)
        return false;
    Forma.Pto[0].Sinc = 1;
    return true;
}

/// Refused, the file stays as far as it was written, on purpose.
std::int16_t write_sync_records(const std::string& path) {
    state::loading.files.open_random(1, path, FixedRecord::length);
    const OpenNumber file(1);
    sync_dat_outline(state::Velmora.TxtDescDat, write_record, step_progress);
    const bool wanted = ensure_sync_point();
    if (wanted)
        sync_dat_sync_points(write_record, step_progress);
    state::loading.files.close(1);
    return wanted ? True : False;
}

std::int16_t write_sync_dat() {
    Draft draft(state::document.FileName);
    const std::int16_t written = write_sync_records(draft.path());
    if (written == True)
        SetDotDecimals(draft.path());
    draft.take_place();
    return written;
}

/// "0.00000" with a point on every machine.
std::string fixed_text(double value) {
    const std::string text = Format5(value);
    return state::program.SepDecimal == '.' ? text : runtime::replaced(text, ',', '.');
}

void write_line(std::string line) {
    state::loading.files.write(1, line.append(kLineEnd));
}

void write_point_lines(char between) {
    write_closed_outline([between](const Pto& point) {
        write_line(fixed_text(point.X) + between + fixed_text(point.Y));
        step_progress();
    });
}

/// The forms that can't hold sync points ask first. Refused, the earlier file goes all the same, on
/// purpose.
bool may_lose_sync_points() {
    if (!HayPuntosSinc() || MuestraMensaje(message::sync_points_lost) != answer::no)
        return true;
    if (runtime::file_exists(state::document.FileName))
        BorraFichero(state::document.FileName);
    return false;
}

/// A text file, by what `write` writes through file 1.
template <class Write>
std::int16_t write_text(Write&& write) {
    if (!may_lose_sync_points())
        return False;
    Draft draft(state::document.FileName);
    state::loading.files.open_output(1, draft.path());
    const OpenNumber file(1);
    write();
    state::loading.files.close(1);
    draft.take_place();
    return True;
}

std::int16_t write_script() {
    return write_text([] {
        write_line("pline");
        write_point_lines(',');
        write_line("");
    });
}

std::int16_t write_profile_dat() {
    return write_text([] {
        write_line(runtime::to_1252(runtime::UCase(SoloNombre(state::document.FileName))));
        write_point_lines(' ');
    });
}

} // namespace

bool HayPuntosSinc() {
    const auto points = Forma.Pto.all();
    return std::any_of(points.begin(), points.end(), [](const Pto& p) { return p.Sinc == 1; });
}

std::int16_t EscribeFichero() {
    state::document.FileName = state::Velmora.TxtDat_File;
    state::Velmora.Pbar1.Max = Forma.Pto.upper() + 1;
    state::Velmora.Pbar1.Value = 0;
    if (state::options.GenDATSinc && write_sync_dat() == False)
        return False;
    if (state::options.GenSCR && write_script() == False)
        return False;
    if (state::options.GenDATPerfil && write_profile_dat() == False)
        return False;
    Dibuja();
    state::Velmora.Pbar1.Value = 0;
    return True;
}

} // namespace velmora
