#include "canvas/save_view.h"

#include "canvas/surface.h"
#include "canvas/view.h"
#include "document/feedback.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "runtime/paths.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <string>

namespace velmora {

namespace {

constexpr std::string_view kExtension = ".png";

/// Beside the outline's file and with its name, where it has one.
std::string offered_path() {
    if (state::document.FileName.empty())
        return {};
    auto path = runtime::native_path(state::document.FileName);
    return runtime::path_text(path.replace_extension(kExtension));
}

std::string ask_for_path() {
    const std::string path = platform().dialogs.save_file(
        {.title = GetMensaje(message::save_view_title),
         .filter = "PNG (*.png)|*.png",
         .folder = state::document.LastDir.empty() ? state::program.program_folder
                                                   : state::document.LastDir,
         .name = offered_path(),
         .extension = std::string(kExtension)});
    if (path.empty() || runtime::native_path(path).has_extension())
        return path;
    return path + std::string(kExtension);
}

bool may_write(const std::string& path) {
    return !runtime::file_exists(path) ||
           MsgBox(GetMensaje(message::the_file) + ' ' + path + ' ' + GetMensaje(message::overwrite),
                  buttons::yes_no + buttons::question, box_title()) == answer::yes;
}

void write(const std::string& path) {
    const VisibleBox& seen = state::Velmora.SSScroll_visible;
    platform().pic.save_part(path, {to_pixel(seen.left), to_pixel(seen.top)},
                             {to_pixel(seen.width), to_pixel(seen.height)});
    set_status(GetMensaje(message::view_saved) + ' ' + path);
}

} // namespace

void save_view() {
    const std::string path = ask_for_path();
    if (path.empty() || !may_write(path))
        return;
    trap([&] { write(path); },
         [&](const RuntimeError&) {
             MsgBox(GetMensaje(message::view_not_saved) + "\n\n" + path, buttons::exclamation,
                    box_title());
         });
}

} // namespace velmora
