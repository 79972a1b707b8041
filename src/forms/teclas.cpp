#include "forms/teclas.h"

#include "platform/platform.h"
#include "platform/program_windows.h"
#include "services/window_literals.h"

namespace velmora {

void teclas_Load() {
    load_literals("teclas");
}

void teclas_Command1_Click() {
    platform().windows.unload("teclas");
}

} // namespace velmora
