#include "services/messages.h"

namespace velmora {
std::string GetMensaje(int) {
    return {};
}
int MuestraMensaje(int) {
    return 1;
}
void close_messages() noexcept {}
} // namespace velmora
