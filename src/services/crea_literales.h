// The way back from a window to its table of literals.
#pragma once

#include "platform/form.h"

namespace velmora {

/// Writes the form's own texts into its table for the language in use, making the table if need be.
/// A text with an apostrophe breaks its statement, since nothing escapes it. Raises 91, 3075, 3022.
void CreaLiterales(Form& form);

} // namespace velmora
