#include "services/window_literals.h"

#include "platform/platform.h"
#include "platform/windows.h"
#include "services/literals.h"

namespace velmora {

void load_literals(std::string_view window) {
    if (Form* form = platform().windows.form(window))
        AplicaLiterales(*form, window);
}

} // namespace velmora
