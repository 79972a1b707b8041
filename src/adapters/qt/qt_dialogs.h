// Message, input, file, colour and font dialogs of the desktop.
#pragma once

#include "platform/dialogs.h"

#include <memory>

namespace velmora {

[[nodiscard]] std::unique_ptr<Dialogs> make_qt_dialogs();

} // namespace velmora
