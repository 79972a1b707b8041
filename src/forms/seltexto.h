// The window seltexto: a typed text in any font becomes the shape. Its values are in
// state::seltexto.
#pragma once

#include "document/windows/seltexto.h"

namespace velmora {

/// The list of the last preview stays from one opening to the next.
void seltexto_Load();
/// The text of `char` changed. An empty one leaves the last preview as it is, on purpose.
void seltexto_char_Change();
/// Asks for the font of Pictext and shows the text in it. Errors are ignored.
void seltexto_cmd_font_Click();
/// The list becomes the outline, all figures joined one after the other by straight moves, scaled
/// to the unit, upright and positive, without a sync point. File name and description stay. Raises
/// 9 for a text of more than 1000 entries, on purpose.
void seltexto_cmd_load_Click();
void seltexto_cmd_exit_Click();

} // namespace velmora
