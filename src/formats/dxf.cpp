#include "formats/dxf.h"

#include "cad/assembly.h"
#include "cad/chain_walk.h"
#include "cad/entity_counters.h"
#include "document/feedback.h"
#include "document/flag.h"
#include "document/forma.h"
#include "document/number_text.h"
#include "document/pointer_shape.h"
#include "document/state/loading.h"
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "formats/dxf_entities.h"
#include "formats/dxf_text.h"
#include "formats/totals.h"
#include "platform/dialogs.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

namespace {

bool holds(std::string_view line, std::string_view word) {
    return line.find(word) != std::string_view::npos;
}

void skip_to(DxfText& text, std::string_view word) {
    while (!holds(text.counted_line(), word)) {
    }
}

bool has_known_version(DxfText& text) {
    skip_to(text, "ACADVER");
    text.counted_line();
    const std::string_view version = text.counted_line();
    return holds(version, "14") || holds(version, "15");
}

void report_version(std::string_view fichero) {
    std::string box = GetMensaje(message::file_version);
    box.append(" ").append(fichero).append(" ");
    box += GetMensaje(message::version_not_supported);
    state::program.Respuesta =
        static_cast<std::int16_t>(MsgBox(box, buttons::critical, box_title()));
}

void read_section(DxfText& text) {
    skip_to(text, "ENTITIES");
    DxfEntities entities(text);
    bool ended = false;
    while (!ended) {
        if (const auto entity = DxfEntities::reader_of(text.counted_line()))
            ended = entities.read(entity);
        else
            ended = text.at_section_end();
    }
}

/// A refused version takes the same way out as a good file, on purpose: OBJS2PTS then reports its
/// error on the empty list.
void load(std::string_view fichero, DxfText& text) {
    state::loading.EscalaCarga = 1;
    reset_entity_counters();
    state::loading.files.open_input(1, fichero);
    Forma.Pto.redim(0);
    if (has_known_version(text))
        read_section(text);
    else
        report_version(fichero);
    state::loading.files.close(1);
    set_status(GetMensaje(message::reorganising_1));
    set_pointer(pointer::hourglass);
    state::Velmora.pbar2.Value = state::Velmora.pbar2.Max;
    walk_dxf();
    set_pointer(pointer::standard);
    OBJS2PTS();
}

Flag ask_cancel(const RuntimeError& failure, std::int32_t lines) {
    state::loading.files.abandon(1);
    show_trap("Error CargaDXF  nº: ", failure, "  -  En Linea: " + CStr(lines));
    if (MsgBox("Cancel Load?", buttons::yes_no + buttons::critical) != answer::yes)
        return True;
    Forma.Pto.redim(0);
    publish_totals(Totals::last_point, 0);
    return False;
}

} // namespace

std::int16_t CargaDXF(std::string_view fichero) {
    DxfText text;
    Flag result = True;
    trap([&] { load(fichero, text); },
         [&](const RuntimeError& failure) { result = ask_cancel(failure, text.counted()); });
    return result;
}

} // namespace velmora
