#include "forms/numeric_box.h"

#include "document/text_box.h"
#include "platform/platform.h"
#include "platform/program_windows.h"
#include "runtime/numbers.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

namespace {

bool passes(const NumericBox& box, int code) {
    if (code == key_code::backspace || code == key_code::enter)
        return true;
    if (code >= '0' && code <= '9')
        return true;
    return code > 0 && code < 128 && box.also.find(static_cast<char>(code)) != box.also.npos;
}

} // namespace

int numeric_key(const NumericBox& box, int code) {
    if (passes(box, code))
        return code;
    MuestraMensaje(message::only_numbers);
    reset_box(box);
    return 0;
}

bool reads_non_zero(const std::string& text) {
    return runtime::Val(text) != 0;
}

void reset_box(const NumericBox& box) {
    put_text(box.text, box.reset_text, [&] {
        if (box.changed != nullptr)
            box.changed();
    });
    platform().windows.set_focus(box.window, box.control);
}

} // namespace velmora
