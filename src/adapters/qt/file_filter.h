// The filters of file dialogs, from the logic's text between bars to the toolkit's lines.
#pragma once

#include <QString>
#include <string_view>

namespace velmora {

/// "DAT Files |*.DAT|Iconos (*.ico;*.cur)|*.ico;*.cur" to lines "DAT Files (*.DAT *.dat)". Names
/// and patterns alternate; where a bar is missing between a pattern and the next name, as in the
/// open dialog's text on purpose, the name's own pattern in brackets shows where the pattern ends.
/// A filter without a usable pattern is left out; none at all gives the empty text, which shows all
/// files.
[[nodiscard]] QString toolkit_filter(std::string_view filter);

} // namespace velmora
