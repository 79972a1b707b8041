// The outline into a file, in the three output forms.
#pragma once

#include <cstdint>

namespace velmora {

/// Writes Forma.Pto in the chosen form; -1 done, 0 refused. Raises the file's errors.
std::int16_t EscribeFichero();
/// Some point has Sinc 1.
[[nodiscard]] bool HayPuntosSinc();

} // namespace velmora
