#include "formats/save.h"

#include "document/feedback.h"
#include "document/flag.h"
#include "document/options.h"
#include "document/pointer_shape.h"
#include "document/recent_files.h"
#include "document/refresh.h"
#include "document/state/document.h"
#include "document/state/options.h"
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "formats/box_text.h"
#include "formats/file_passes.h"
#include "formats/outline_writer.h"
#include "formats/seen_file.h"
#include "formats/thinning.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "platform/shell.h"
#include "runtime/error.h"
#include "runtime/paths.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/shape_at_hand.h"

namespace velmora {

namespace {

/// The name that the dialog offers: the last one without its extension, whatever its last four
/// characters are. Raises 5 for a shorter name.
std::string offered_name() {
    if (state::document.FileName.find('.') == std::string::npos)
        return {};
    const auto length = static_cast<int>(runtime::Len(state::document.FileName));
    return runtime::Left(state::document.FileName, length - 4);
}

std::string ask_for_path() {
    return platform().dialogs.save_file(
        {.title = GetMensaje(message::save_title),
         .filter = state::document.DefExt + " | *" + state::document.DefExt,
         .folder = state::program.program_folder,
         .name = offered_name(),
         .extension = state::document.DefExt});
}

/// A file without an extension would be written, and never be read again.
std::string with_extension(const std::string& path) {
    const std::string name = SoloNombre(path);
    if (name.empty())
        return path;
    if (name.back() == '.')
        return path.substr(0, path.size() - 1) + state::document.DefExt;
    return name.find('.') == std::string::npos ? path + state::document.DefExt : path;
}

int ask_to_overwrite() {
    return MsgBox(joined_by_blanks({GetMensaje(message::the_file), state::document.FileName,
                                    GetMensaje(message::overwrite)}),
                  buttons::yes_no_cancel + buttons::question, box_title());
}

/// Puts the chosen path into FileName; false when the user gave up. Given up at the overwrite
/// question, FileName keeps the path.
bool choose_path() {
    for (;;) {
        const std::string path = with_extension(ask_for_path());
        if (path.empty())
            return false;
        state::document.FileName = path;
        if (!runtime::file_exists(path))
            return true;
        const int reply = ask_to_overwrite();
        if (reply == answer::cancel)
            return false;
        if (reply != answer::no)
            return true;
    }
}

void ask_for_description() {
    std::string& description = state::Velmora.TxtDescDat;
    description = without_control_characters(
        InputBox(GetMensaje(message::ask_description), box_title(), description));
    if (description.empty())
        description = SoloNombre(state::document.FileName);
}

void run_save_dialog() {
    if (!shape_at_hand())
        return;
    if (!choose_path())
        return;
    state::Velmora.TxtDat_File = state::document.FileName;
    if (state::document.DefExt != ".scr")
        ask_for_description();
    state::Velmora.TxtDescDat = after_last_backslash(state::Velmora.TxtDescDat);
}

/// A precision below 1 is only put right by this press; nothing is written.
void reset_precision() {
    MuestraMensaje(message::precision_too_low);
    platform().windows.set_focus("winoptions", "TxtPrecision");
    set_TxtPrecision("1");
    state::options.Precision = 1;
}

/// A file that another program wrote since it was opened is asked about. One whose folder went away
/// with its stick or its network is told: there is nothing to write on. A path that was typed goes
/// on to the writer and its error.
bool place_is_as_it_was() {
    const std::string& path = state::Velmora.TxtDat_File;
    if (folder_gone_since_seen(path)) {
        const RuntimeError gone(error::path_not_found);
        MsgBox(joined_by_blanks({GetMensaje(message::the_file), path, description_of(gone)}),
               buttons::exclamation, box_title());
        return false;
    }
    if (!changed_since_seen(path))
        return true;
    const std::string question = joined_by_blanks(
        {GetMensaje(message::the_file), path, GetMensaje(message::changed_on_disk)});
    return MsgBox(question, buttons::yes_no + buttons::question, box_title()) == answer::yes;
}

void report_created() {
    if (!runtime::file_exists(state::document.FileName))
        return;
    const bool script = runtime::UCase(state::document.FileName).find(".SCR") != std::string::npos;
    const int praise = script ? message::created_script : message::created_dat;
    MsgBox(
        joined_by_blanks({GetMensaje(message::file), state::document.FileName, GetMensaje(praise)}),
        buttons::information, box_title());
}

} // namespace

void DialogoGuardar() {
    // Cancel is an error to the dialog; it and all others end the routine without a word.
    trap(run_save_dialog, [](const RuntimeError&) {});
}

void GeneraFichero() {
    if (runtime::Trim(state::Velmora.TxtDat_File).empty())
        return;
    if (state::options.Precision < 1) {
        reset_precision();
        return;
    }
    if (!place_is_as_it_was())
        return;
    Apply_Precision();
    if (state::options.OptimizeOnGen)
        OptimizaPtos();
    set_pointer(pointer::hourglass);
    const std::int16_t written = EscribeFichero();
    set_pointer(pointer::standard);
    note_seen(state::document.FileName);
    if (written == False)
        return;
    set_status(GetMensaje(message::file) + " " + runtime::UCase(state::document.FileName) + " " +
               GetMensaje(message::created));
    if (state::program.Sound == 1)
        platform().shell.play(program_file("\\mdbwav1.wav"));
    UpdateFileMenu(state::Velmora.TxtDat_File);
    report_created();
}

} // namespace velmora
