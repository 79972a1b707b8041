// The commands that are not built yet: each shows one plain box.
#include "document/feedback.h"
#include "document/handlers.h"

namespace velmora {

namespace {
void not_available() {
    MsgBox("Todavía no disponible");
}
} // namespace

void mnu_print() {
    not_available();
}
void mnu_seltexto() {
    not_available();
}
void K_PRINT() {
    not_available();
}

} // namespace velmora
