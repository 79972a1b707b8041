#include "cad/capture.h"

#include "cad/assembly.h"
#include "cad/captured_points.h"
#include "cad/chain_walk.h"
#include "cad/connection.h"
#include "cad/entities.h"
#include "cad/entity_counters.h"
#include "cad/points_to_lines.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/number_text.h"
#include "document/state/cad.h"
#include "document/state/document.h"
#include "document/state/options.h"
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "document/windows/winoptions.h"
#include "platform/dialogs.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "services/message_codes.h"
#include "services/messages.h"

#include <utility>

namespace velmora {

namespace {

void take_point_counts() {
    state::options.PutArc = runtime::to_int32(runtime::Val(state::winoptions.TxtPutArc));
    state::options.PutCircle = runtime::to_int32(runtime::Val(state::winoptions.TxtPutCircle));
}

void start_figures(AcadDocument& drawing, std::int32_t entities) {
    set_status(GetMensaje(message::capturing_from) + " " + runtime::UCase(drawing.Name()) + " !");
    state::Velmora.Pbar1 = {.Min = 0, .Max = static_cast<double>(entities), .Value = 0};
    state::Velmora.pbar2.Value = 0;
    reset_entity_counters();
    clear_entity_boxes();
    DoEvents();
}

// A spline is passed over, so that the origin comes from the next entity of another kind.
void take_origin(const ObjCad& object, Flag& origenDelDibujo) {
    if (origenDelDibujo == False || object.Tipo == TipoCad::AcDbSpline)
        return;
    state::cad.CadOrigX = object.Ptos[0].X;
    state::cad.CadOrigY = object.Ptos[0].Y;
    origenDelDibujo = False;
}

void put_entity(std::int32_t position, ObjCad object) {
    state::cad.ObjsCad.redim_keep(position);
    state::cad.ObjsCad[position] = std::move(object);
}

void read_entities(AcadDocument& drawing, std::int32_t entities, Flag& origenDelDibujo) {
    std::int32_t taken = 0;
    for (std::int32_t i = 0; i < entities; ++i) {
        state::Velmora.Pbar1.Value = i;
        const std::unique_ptr<AcadEntity> entity = drawing.Item(i);
        const TipoCad tipo = tipo_of(entity->ObjectName());
        if (tipo != TipoCad::none) {
            ObjCad object{.Ptos = captured_points(*entity, tipo), .Id = i, .Orden = -1};
            object.NPtos = object.Ptos.upper();
            object.Tipo = tipo;
            take_origin(object, origenDelDibujo);
            put_entity(taken, std::move(object));
            count_entity(tipo, ++taken);
        }
        DoEvents();
    }
}

void report(std::int32_t incoherent) {
    if (incoherent == 0) {
        set_status(GetMensaje(message::objects_loaded));
        return;
    }
    const std::string text = GetMensaje(message::found) + " " + CStr(incoherent) + " " +
                             GetMensaje(message::incoherent_lines);
    MsgBox(text, buttons::critical, box_title());
    set_status(text);
}

} // namespace

void CapturaAcad(Flag& origenDelDibujo) {
    state::cad.ObjsCad.redim(0);
    take_point_counts();
    const std::shared_ptr<AcadDocument> drawing = connected_document();
    const std::int32_t entities = drawing->Count();
    if (entities == 0) {
        MuestraMensaje(message::document_empty);
        return;
    }
    start_figures(*drawing, entities);
    read_entities(*drawing, entities, origenDelDibujo);
    PuntosALineas();
    // By the index in the list, which is not the entity's own where others were passed over.
    const auto incoherent =
        walk_capture(entities, [&](std::int32_t index) { drawing->Item(index)->set_Color(2); });
    if (!incoherent)
        return;
    OBJS2PTS();
    state::document.LoadOk = 0;
    report(*incoherent);
}

} // namespace velmora
