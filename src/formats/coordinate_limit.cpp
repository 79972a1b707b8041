#include "formats/coordinate_limit.h"

#include "document/feedback.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/state/loading.h"
#include "document/state/program.h"
#include "formats/box_text.h"
#include "platform/dialogs.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

bool CoordinateLimit::admits(const Pto& stored) {
    over_ = stored.X > state::loading.LimiteCoord ? stored.X : stored.Y;
    return !(over_ > state::loading.LimiteCoord);
}

bool CoordinateLimit::offer_scaling() const {
    const std::string text = joined_by_blanks(
        {GetMensaje(message::the_file), path_, GetMensaje(message::coordinates_over),
         CStr(state::loading.LimiteCoord) + "!", GetMensaje(message::offer_scaling)});
    state::program.Respuesta =
        static_cast<std::int16_t>(MsgBox(text, buttons::yes_no + buttons::critical, box_title()));
    if (state::program.Respuesta != answer::ok)
        return false;
    state::loading.MaxCoordCarga = over_;
    while (state::loading.MaxCoordCarga > state::loading.LimiteCoord) {
        state::loading.EscalaCarga *= 10;
        state::loading.MaxCoordCarga = over_ / state::loading.EscalaCarga;
    }
    return true;
}

} // namespace velmora
