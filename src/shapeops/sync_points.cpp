#include "shapeops/sync_points.h"

#include "document/feedback.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/refresh.h"
#include "document/selection.h"
#include "document/shown.h"
#include "document/state/document.h"
#include "document/state/program.h"
#include "platform/dialogs.h"
#include "services/message_codes.h"
#include "services/messages.h"
#include "services/shape_at_hand.h"

#include <optional>

namespace velmora {

namespace {

void flip_selected(std::int16_t from, std::int16_t to, std::int32_t step) {
    if (!has_selection() || Forma.Pto[state::document.PtoSel].Sinc != from)
        return;
    Forma.Pto[state::document.PtoSel].Sinc = to;
    shown::TotalSinc().step(step);
    Dibuja_unless_NoRedraw();
}

void mark_from(std::size_t first, std::int16_t sinc, std::int32_t count) {
    for (Pto& point : Forma.Pto.all().subspan(first))
        point.Sinc = sinc;
    shown::TotalSinc().put(count);
    Dibuja_unless_NoRedraw();
}

/// Plain points from the selected one on to the next sync point, with one wrap; nothing when there
/// is no sync point at all.
std::optional<std::int32_t> points_to_next_sinc() {
    const std::int32_t upper = Forma.Pto.upper();
    std::int32_t plain = 0;
    for (const std::int32_t first : {state::document.PtoSel + 1, 0}) {
        for (std::int32_t i = first; i <= upper; ++i) {
            if (Forma.Pto[i].Sinc != 0)
                return plain;
            ++plain;
        }
    }
    return std::nullopt;
}

} // namespace

void Insert_Pto_Sinc() {
    flip_selected(0, 1, +1);
}

void Delete_Pto_Sinc() {
    flip_selected(1, 0, -1);
}

// Point 0 stays as it was, and the total shown is one less than the points marked: on purpose.
void Insert_All_Pto_Sinc() {
    if (shape_at_hand())
        mark_from(1, 1, Forma.Pto.upper() - 1);
}

void Delete_All_Pto_Sinc() {
    if (shape_at_hand())
        mark_from(0, 0, 0);
}

void Pts_To_Next_Sinc() {
    const auto plain = points_to_next_sinc();
    if (!plain)
        return;
    MsgBox(GetMensaje(message::points_to_next_sync) + " " + CStr(*plain), buttons::information,
           box_title());
}

} // namespace velmora
