#include "adapters/qt/qt_platform.h"

#include "cad/autocad.h"
#include "canvas/surface.h"
#include "platform/clock.h"
#include "platform/database.h"
#include "platform/dialogs.h"
#include "platform/machine.h"
#include "platform/settings_store.h"
#include "platform/shell.h"

namespace velmora {

QtPlatform::QtPlatform() : windows(std::make_unique<WindowsHost>()) {}
QtPlatform::~QtPlatform() = default;
void QtPlatform::install() {}
std::string find_program_folder() {
    return {};
}

} // namespace velmora
