// What the desktop does for the logic: programs for files, the recycle bin, sounds.
#pragma once

#include "platform/shell.h"

#include <functional>
#include <memory>
#include <string>

namespace velmora {

/// Opening the Spanish help file opens the guide in the language that `guide_language` says, "en",
/// as far as it is there: the help file "velmora_en.chm" beside it, or the pages in "help/en".
[[nodiscard]] std::unique_ptr<Shell> make_qt_shell(std::function<std::string()> guide_language);

} // namespace velmora
