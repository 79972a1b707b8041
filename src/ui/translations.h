// The toolkit's own texts (OK, Cancel, the file dialog) in the program's language.
#pragma once

#include <string_view>

namespace velmora {

/// `idioma` is the program's letter: E, I, F, P or T. A language without a table leaves them
/// English.
void install_translations(std::string_view idioma);

} // namespace velmora
