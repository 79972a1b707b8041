// The guide: in which language it opens, and which of its pages tells of a window.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// The guide's folder for the program's language, "en".
[[nodiscard]] std::string guide_language();

/// The page of the guide that tells of a window, "dos_lados"; empty where none does.
[[nodiscard]] std::string_view guide_page(std::string_view window);

/// Opens that page, the whole guide where it is missing. Without a page nothing happens.
void open_guide_page(std::string_view window);

} // namespace velmora
