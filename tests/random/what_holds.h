// What must hold after any step, whatever was pressed.
#pragma once

#include <string>

namespace velmora::random {

/// Empty where all holds; else what does not.
[[nodiscard]] std::string what_is_broken();

} // namespace velmora::random
