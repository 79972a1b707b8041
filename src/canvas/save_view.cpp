#include "canvas/save_view.h"

#include "canvas/surface.h"
#include "canvas/view.h"
#include "document/feedback.h"
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

namespace {

void write(const std::string& path) {
    const VisibleBox& seen = state::Velmora.SSScroll_visible;
    platform().pic.save_part(path, {to_pixel(seen.left), to_pixel(seen.top)},
                             {to_pixel(seen.width), to_pixel(seen.height)});
    set_status(GetMensaje(message::view_saved) + ' ' + path);
}

} // namespace

void save_view(const std::string& path) {
    trap([&] { write(path); },
         [&](const RuntimeError&) {
             MsgBox(GetMensaje(message::view_not_saved) + "\n\n" + path, buttons::exclamation,
                    box_title());
         });
}

} // namespace velmora
