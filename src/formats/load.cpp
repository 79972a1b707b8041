#include "formats/load.h"

#include "cad/entity_counters.h"
#include "document/cancelling.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/pointer_shape.h"
#include "document/refresh.h"
#include "document/shown.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "document/windows/wininfo.h"
#include "formats/box_text.h"
#include "formats/file_passes.h"
#include "formats/origin.h"
#include "formats/passed_over.h"
#include "formats/reading.h"
#include "formats/seen_file.h"
#include "formats/totals.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/paths.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <algorithm>

namespace velmora {

namespace {

std::string ask_for_path() {
    if (state::document.LastDir.empty())
        state::document.LastDir = state::program.program_folder;
    return platform().dialogs.open_file({.title = GetMensaje(message::open_title),
                                         .filter = GetMensaje(message::open_filter),
                                         .folder = state::document.LastDir,
                                         .name = {}});
}

void show_reading(std::string_view path) {
    set_status(GetMensaje(message::loading) + " " + runtime::UCase(path));
}

/// A word on the lines that the reader passed over in silence.
void tell_of_losses(const std::string& path, const Format& format) {
    const std::size_t lost = format.takes == nullptr ? 0 : lines_passed_over(path, format.takes);
    if (lost == 0)
        return;
    std::string text = quiet_text(message::lines_passed_over);
    text.replace(std::min(text.find("{n}"), text.size()), 3, CStr(Forma.Pto.upper() + 1));
    text.replace(std::min(text.find("{m}"), text.size()), 3, std::to_string(lost));
    state::Velmora.lbl_notice = text;
}

/// Reads the file by the reader of its kind and gives the format's text. Where the kind is not
/// found there is no text, and LoadOk keeps the value of the load before, on purpose.
std::string read_by_kind(const std::string& path) {
    const std::string extension = runtime::UCase(runtime::Right(path, 3));
    if (extension == "DAT") {
        const FileFormat format = GetFileFormat(path);
        if (format == FileFormat::undecided)
            return {};
        state::document.LoadOk = CargaDAT(path, format);
        return GetMensaje(format_of(format)->text);
    }
    const Format* const format = format_of(extension);
    if (format == nullptr)
        return {};
    state::document.LoadOk = format->read(path, path);
    if (state::document.LoadOk != False)
        tell_of_losses(path, *format);
    return GetMensaje(format->text);
}

void show_figures() {
    shown::OrigX().put(Forma.Pto[0].X);
    shown::OrigY().put(Forma.Pto[0].Y);
    // Not the count, on purpose: Define_Layout puts that there right after.
    shown::TotalPtos().put(Forma.Pto.upper() - 1);
    shown::PtosSuprimidos().put(0);
    clear_entity_counts();
}

void take_in(const std::string& path, const std::string& format_text) {
    set_status(GetMensaje(message::loaded) + " " + runtime::UCase(SoloNombre(path)) +
               GetMensaje(message::type) + " " + format_text);
    state::document.FileName = path;
    show_figures();
    state::Velmora.TxtDat_File = state::document.FileName;
    note_seen(path);
    Check00();
}

void show_info_window() {
    platform().windows.show("wininfo");
    state::wininfo.chk_wininfo = true;
}

/// Of a load that does not come about. The box of a recent file names that file already: a save
/// must not write this outline over it.
void stand_as_before(const ShapeBefore& before, std::int16_t mode) {
    before.put_back();
    if (mode != 1)
        state::Velmora.TxtDat_File = has_shape() ? state::document.FileName : "";
}

void refuse(const std::string& path, const std::string& format_text) {
    MsgBox(joined_by_blanks(
               {GetMensaje(message::the_file), path, GetMensaje(message::not_loaded), format_text}),
           buttons::critical, box_title());
    set_pointer(pointer::standard);
}

/// What a reader reads: the file, or where a pass could not rewrite it the passed copy, which is
/// deleted once it was read.
class PassedFile {
  public:
    explicit PassedFile(std::string_view path) : path_(path), to_read_(path) {
        to_read_ = SetDecimalSep(to_read_);
    }
    ~PassedFile() {
        if (to_read_ != path_)
            runtime::remove_file(to_read_);
    }
    PassedFile(const PassedFile&) = delete;
    PassedFile& operator=(const PassedFile&) = delete;

    void tabs_to_blanks() { to_read_ = TabToSpace(to_read_); }
    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] const std::string& to_read() const { return to_read_; }

  private:
    std::string path_;
    std::string to_read_;
};

std::int16_t read_dialect_file(PassedFile& file, FileFormat code) {
    const Format* const format = format_of(code);
    if (format == nullptr)
        return False;
    if (format->passes == Passes::separator_and_tabs)
        file.tabs_to_blanks();
    const std::int16_t result = format->read(file.to_read(), file.path());
    if (result != False)
        tell_of_losses(file.to_read(), *format);
    return result;
}

} // namespace

void CargaFichero(std::int16_t mode, std::int16_t& result) {
    result = False;
    state::Velmora.lbl_notice.clear();
    clear_canvas();
    const std::string path = mode == 1 ? ask_for_path() : state::Velmora.TxtDat_File;
    if (path.empty())
        return;
    const ShapeBefore before;
    if (!may_be_read(path)) {
        stand_as_before(before, mode);
        return;
    }
    show_info_window();
    DoEvents();
    state::document.LastDir = QuitaNombre(path);
    show_reading(path);
    std::string format_text;
    if (!run_or_cancel([&] { format_text = read_by_kind(path); })) {
        stand_as_before(before, mode);
        set_status(GetMensaje(message::reading_cancelled));
        return;
    }
    if (state::document.LoadOk == False) {
        refuse(path, format_text);
        return;
    }
    take_in(path, format_text);
    result = True;
}

void take_in_imported(const std::string& path, const std::string& format) {
    clear_canvas();
    show_info_window();
    publish_totals(Totals::all, Forma.Pto.upper());
    shown::TotalSinc().put(1);
    take_in(path, format);
    note_unwritten();
}

std::int16_t CargaDAT(std::string_view path, FileFormat format) {
    show_reading(path);
    DoEvents();
    PassedFile file(path);
    const std::int16_t result = read_dialect_file(file, format);
    set_status("");
    DoEvents();
    return result;
}

} // namespace velmora
