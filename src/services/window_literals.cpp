#include "services/window_literals.h"

#include "platform/platform.h"
#include "platform/program_windows.h"
#include "services/literals.h"

namespace velmora {

void load_literals(std::string_view window) {
    if (Form* form = platform().windows.form(window))
        AplicaLiterales(*form, window);
}

std::string caption_of(std::string_view window, std::string_view control) {
    Form* form = platform().windows.form(window);
    if (form == nullptr)
        return {};
    for (int i = 0; i < form->control_count(); ++i)
        if (form->control(i).name() == control)
            return form->control(i).text(0);
    return {};
}

} // namespace velmora
