// The desktop behind the logic's back: programs for files, the recycle bin, sounds.
#pragma once

#include "platform/shell.h"

#include <memory>

namespace velmora {

[[nodiscard]] std::unique_ptr<Shell> make_qt_shell();

} // namespace velmora
