#include "formats/files.h"
#include "platform/platform.h"
#include "platform/shell.h"

namespace velmora {
bool BorraFichero(std::string_view path) {
    return platform().shell.recycle(path);
}
std::string QuitaNombre(std::string_view) {
    return {};
}
std::string SoloNombre(std::string_view) {
    return {};
}
std::string after_last_backslash(std::string_view) {
    return {};
}
void SetDecimalSep(std::string_view) {}
void TabToSpace(std::string_view) {}
void SetDotDecimals(std::string_view) {}
} // namespace velmora
