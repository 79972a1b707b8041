#include "forms/cut_saving.h"

#include "cutprep/text_file.h"
#include "document/feedback.h"
#include "document/state/program.h"
#include "document/windows/ajuste.h"
#include "document/windows/ver_corte.h"
#include "forms/save_place.h"
#include "platform/dialogs.h"
#include "runtime/error.h"

namespace velmora {

namespace {

std::string first_side() {
    const VerCorteWindow& window = state::ver_corte;
    return window.cut->stage == CutStage::files ? window.file_A : state::ajuste.Txt_File_A2;
}

} // namespace

std::string ask_for_cut_place(std::string_view title, std::string_view kind,
                              const std::string& extension, const CutWords& words) {
    std::string filter(kind);
    filter.append(" (*").append(extension).append(")|*").append(extension);
    return ask_where_to_save({.title = words.text(title),
                              .filter = filter,
                              .folder = state::program.program_folder,
                              .name = beside(first_side(), extension),
                              .extension = extension});
}

bool write_cut_file(const std::string& path, std::string_view bytes, const CutWords& words) {
    bool written = false;
    trap(
        [&] {
            write_text_file(path, bytes);
            written = true;
        },
        [&](const RuntimeError& failure) {
            MsgBox(words.named("not_written", path) + "\n\n" + description_of(failure),
                   buttons::critical, box_title());
        });
    return written;
}

} // namespace velmora
