// The logic's texts as the toolkit's.
#pragma once

#include <QString>
#include <string_view>

namespace velmora {

[[nodiscard]] inline QString qt_text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace velmora
