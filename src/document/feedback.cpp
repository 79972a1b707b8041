#include "document/feedback.h"

#include "document/pointer_shape.h"
#include "document/state/loading.h"
#include "document/state/program.h"
#include "document/windows/velmora.h"
#include "platform/cancelled.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/program_windows.h"

namespace velmora {

namespace {

std::string_view own_or_plain(std::string_view title) {
    return title.empty() ? "Velmora" : title;
}

int keep_answer(int chosen) {
    state::program.Respuesta = static_cast<std::int16_t>(chosen);
    return chosen;
}

} // namespace

void set_status(std::string_view text) {
    if (state::Velmora.StatusBar1 == text)
        return;
    state::Velmora.StatusBar1 = text;
    platform().windows.status_changed();
}

void set_pointer(int pointer) {
    if (state::Velmora.MousePointer == pointer)
        return;
    state::Velmora.MousePointer = pointer;
    platform().windows.pointer_changed();
}

void DoEvents() {
    platform().windows.yield();
    if (state::loading.reading && state::loading.cancel_asked)
        throw Cancelled{};
}

int MsgBox(std::string_view text, int buttons, std::string_view title) {
    return keep_answer(platform().dialogs.message(text, buttons, own_or_plain(title)));
}

int MsgBoxWithIcon(int icon, std::string_view text, int buttons, std::string_view title) {
    return keep_answer(
        platform().dialogs.message_with_icon(icon, text, buttons, own_or_plain(title)));
}

std::string InputBox(std::string_view prompt, std::string_view title, std::string_view preset) {
    return platform().dialogs.input(prompt, title, preset).value_or("");
}

std::string description_of(const RuntimeError& failure) {
    if (!failure.description.empty())
        return failure.description;
    return error_description(failure.number,
                             state::program.Idioma.empty() ? 'E' : state::program.Idioma[0]);
}

void show_trap(std::string_view prefix, const RuntimeError& failure, std::string_view tail) {
    std::string text(prefix);
    text += std::to_string(failure.number) + "  - Desc: " + description_of(failure);
    text += tail;
    MsgBox(text);
}

LongOperation::LongOperation(std::string_view start_message) {
    set_status(start_message);
    set_pointer(pointer::hourglass);
    DoEvents();
}

void LongOperation::finish(std::string_view end_message) {
    set_status(end_message);
    set_pointer(pointer::standard);
    DoEvents();
}

} // namespace velmora
