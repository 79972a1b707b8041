// Numbered messages in the language in use, from the table Mensajes.
#pragma once

#include <string>

namespace velmora {

/// The text of a message, trimmed; empty when it has no row or a Null text. Raises 91 while the
/// language database is not open, 3078 when it has no table Mensajes.
[[nodiscard]] std::string GetMensaje(int codigo);

/// The same without the hourglass, for a note of our own beside a command: the pointer is the
/// command's.
[[nodiscard]] std::string quiet_text(int codigo);

/// Shows a message with the buttons and title of its row and returns the answer. A missing text
/// becomes "Error de Tabla de Idiomas" with the exclamation icon. Raises as GetMensaje does.
int MuestraMensaje(int codigo);

/// Closes what the look-ups hold open.
void close_messages() noexcept;

} // namespace velmora
