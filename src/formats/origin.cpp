#include "formats/origin.h"

#include "document/feedback.h"
#include "document/forma.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "formats/box_text.h"
#include "platform/dialogs.h"
#include "runtime/error.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

namespace {

bool has_origin() {
    for (const Pto& point : Forma.Pto.all())
        if (point.X == 0 && point.Y == 0)
            return true;
    return false;
}

void move_to_origin(std::int32_t index) {
    const Pto origin = Forma.Pto[index];
    for (Pto& point : Forma.Pto.all()) {
        point.X = runtime::checked(point.X - origin.X);
        point.Y = runtime::checked(point.Y - origin.Y);
    }
}

std::int32_t leftmost() {
    double smallest = 100000.0;
    std::int32_t position = 0;
    for (std::int32_t i = 0; i <= Forma.Pto.upper(); ++i) {
        if (Forma.Pto[i].X < smallest) {
            smallest = Forma.Pto[i].X;
            position = i;
        }
    }
    return position;
}

} // namespace

void Check00() {
    if (has_origin())
        return;
    const int reply =
        MsgBox(joined_by_blanks({GetMensaje(message::the_file), state::document.FileName,
                                 GetMensaje(message::no_origin)}),
               buttons::yes_no + buttons::question, box_title());
    if (reply == answer::yes)
        move_to_origin(GetMinXPos());
}

std::int32_t GetMinXPos() {
    std::int32_t position = 0;
    trap([&] { position = leftmost(); },
         [](const RuntimeError& failure) { show_trap("Error GetMinXPos nº: ", failure); });
    return position;
}

} // namespace velmora
