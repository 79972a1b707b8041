#include "canvas/background.h"

#include "canvas/surface.h"
#include "document/feedback.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "runtime/error.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

void CargaImagen() {
    FileRequest request;
    request.title = GetMensaje(message::open_title);
    request.filter = GetMensaje(message::picture_filter);
    request.folder =
        state::document.LastDir.empty() ? state::program.program_folder : state::document.LastDir;
    const std::string file = platform().dialogs.open_file(request);
    if (file.empty())
        return;
    // A file that is not a picture leaves the background as it was.
    trap(
        [&file] {
            platform().pic.set_picture(file);
            platform().pic.present();
        },
        [](const RuntimeError& failure) { show_trap("Error CargaImagen nº: ", failure); });
}

} // namespace velmora
