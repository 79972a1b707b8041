// Text between the logic's UTF-8 and the system's UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace velmora::com {

/// Bytes that are not UTF-8 become U+FFFD.
[[nodiscard]] std::wstring wide_text(std::string_view text);
[[nodiscard]] std::string utf8_text(std::wstring_view text);

} // namespace velmora::com
