#include "forms/cut_saving.h"

#include "cutprep/text_file.h"
#include "document/feedback.h"
#include "document/state/program.h"
#include "document/windows/ajuste.h"
#include "document/windows/ver_corte.h"
#include "forms/save_place.h"
#include "platform/dialogs.h"
#include "runtime/error.h"
#include "runtime/paths.h"

#include <filesystem>

namespace velmora {

namespace {

std::string offered_path(const std::string& extension) {
    const VerCorteWindow& window = state::ver_corte;
    const std::string side =
        window.cut->stage == CutStage::files ? window.file_A : state::ajuste.Txt_File_A2;
    if (side.empty())
        return {};
    std::filesystem::path path = runtime::native_path(side);
    path.replace_extension(extension);
    return runtime::path_text(path);
}

} // namespace

std::string name_of_file(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

std::string ask_for_cut_place(std::string_view title, std::string_view kind,
                              const std::string& extension, const CutWords& words) {
    std::string filter(kind);
    filter.append(" (*").append(extension).append(")|*").append(extension);
    return ask_where_to_save({.title = words.text(title),
                              .filter = filter,
                              .folder = state::program.program_folder,
                              .name = offered_path(extension),
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
