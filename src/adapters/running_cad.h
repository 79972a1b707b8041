// The CAD of this desktop. Each platform's adapter defines it, and the build takes one of them:
// over the session bus, or over the automation interface of Windows.
#pragma once

#include "cad/autocad.h"

#include <memory>

namespace velmora {

[[nodiscard]] std::unique_ptr<Autocad> make_running_cad();

} // namespace velmora
