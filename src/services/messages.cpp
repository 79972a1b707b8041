#include "services/messages.h"

#include "document/feedback.h"
#include "document/state/program.h"
#include "platform/database.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "services/hourglass.h"
#include "services/message_codes.h"

#include <optional>

namespace velmora {

namespace {

// The table stays open from the first message to the end of the program.
std::unique_ptr<Recordset>& mensajes() {
    static std::unique_ptr<Recordset> table;
    return table;
}

struct Message {
    std::string text;
    std::string title;
    int buttons = 0;
};

std::string trimmed_field(std::string_view field) {
    const Value value = mensajes()->field(field);
    return is_null(value) ? std::string{} : std::string(runtime::Trim(text_of(value)));
}

void open_table() {
    mensajes() = platform().database.open_recordset("Mensajes", Access::read_only);
}

// Goes to the row of the code; false when there is none, a Null text counts as none.
bool find(int codigo) {
    mensajes()->seek({std::to_string(codigo), state::program.Idioma});
    return !mensajes()->no_match() && !is_null(mensajes()->field("Descripcion"));
}

Message look_up(int codigo) {
    if (!mensajes()) {
        const Hourglass hourglass;
        open_table();
    }
    const Hourglass hourglass;
    if (!find(codigo))
        return {};
    return {trimmed_field("Descripcion"), trimmed_field("Titulo"),
            runtime::to_int32(runtime::Val(trimmed_field("Botones")))};
}

/// The icon where the table names none: a question, a loss to think over, a note, or that something
/// was not done.
int icon_for(int codigo, int coded) {
    if (codigo == message::sync_points_lost)
        return buttons::exclamation;
    if (codigo == message::language_next_start)
        return buttons::information;
    return coded == buttons::ok ? buttons::exclamation : buttons::question;
}

} // namespace

std::string GetMensaje(int codigo) {
    return look_up(codigo).text;
}

std::string quiet_text(int codigo) {
    if (!mensajes())
        open_table();
    return find(codigo) ? trimmed_field("Descripcion") : std::string{};
}

int MuestraMensaje(int codigo) {
    Message message = look_up(codigo);
    if (message.text.empty()) {
        message.text = "Error de Tabla de Idiomas";
        message.buttons = buttons::exclamation;
    }
    return MsgBoxWithIcon(icon_for(codigo, message.buttons), message.text, message.buttons,
                          message.title);
}

void close_messages() noexcept {
    mensajes().reset();
}

} // namespace velmora
