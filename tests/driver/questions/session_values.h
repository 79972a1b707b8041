// The session's values by their names.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {
struct Session;
}

namespace velmora::driver {

/// The value as text: a number, a flag as -1 or 0, a text as it stands (not quoted). Colours are
/// signed 32-bit numbers. Nothing for a name that is no session value.
[[nodiscard]] std::optional<std::string> session_value(const Session& session,
                                                       std::string_view name);

} // namespace velmora::driver
