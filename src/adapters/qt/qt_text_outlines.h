// The outlines of texts in the desktop's fonts.
#pragma once

#include "generators/text_outlines.h"

#include <memory>

namespace velmora {

/// Needs a QGuiApplication.
[[nodiscard]] std::unique_ptr<TextOutlines> make_qt_text_outlines();

} // namespace velmora
