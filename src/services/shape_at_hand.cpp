#include "services/shape_at_hand.h"

#include "document/forma.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

bool shape_at_hand() {
    if (has_shape())
        return true;
    MuestraMensaje(message::no_shape);
    return false;
}

} // namespace velmora
