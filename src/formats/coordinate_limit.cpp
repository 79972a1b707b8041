#include "formats/coordinate_limit.h"

#include "document/feedback.h"
#include "document/number_text.h"
#include "formats/box_text.h"
#include "platform/dialogs.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

bool CoordinateLimit::admits(const Pto& stored) {
    over_ = stored.X > session.LimiteCoord ? stored.X : stored.Y;
    return !(over_ > session.LimiteCoord);
}

bool CoordinateLimit::offer_scaling() const {
    const std::string text = joined_by_blanks(
        {GetMensaje(mensaje::the_file), path_, GetMensaje(mensaje::coordinates_over),
         CStr(session.LimiteCoord) + "!", GetMensaje(mensaje::offer_scaling)});
    session.Respuesta =
        static_cast<std::int16_t>(MsgBox(text, buttons::yes_no + buttons::critical, box_title()));
    if (session.Respuesta != answer::ok)
        return false;
    session.MaxCoordCarga = over_;
    while (session.MaxCoordCarga > session.LimiteCoord) {
        session.EscalaCarga *= 10;
        session.MaxCoordCarga = over_ / session.EscalaCarga;
    }
    return true;
}

} // namespace velmora
