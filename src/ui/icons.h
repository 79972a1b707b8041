// The program's own pictures, rendered from data/icons at build time.
#pragma once

#include <QIcon>
#include <string_view>

class QPalette;

namespace velmora {

/// The icon of a toolbar key, in the colours that stand out on the palette's windows.
[[nodiscard]] QIcon tool_icon(std::string_view key, const QPalette& palette);
[[nodiscard]] QIcon app_icon();
[[nodiscard]] QIcon splash_picture();

} // namespace velmora
