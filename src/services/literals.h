// The captions and tips of the windows, from one table per window.
#pragma once

#include "platform/form.h"

#include <string>
#include <string_view>

namespace velmora {

/// Puts the literals of the form's table into its caption and controls; blank ones leave the design
/// text. Without the table, or without a database, nothing is applied. `nombre` isn't used.
void AplicaLiterales(Form& form, std::string_view nombre);

/// Descripcion and Desc_Tip of the form table that is open, for the key and the language in use;
/// trimmed, empty when there is none.
[[nodiscard]] std::string GetLiteral(std::string_view control);
[[nodiscard]] std::string GetTip(std::string_view control);

} // namespace velmora
