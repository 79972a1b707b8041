// The session's values by their names.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmora {
struct Session;
}

namespace velmora::driver {

class Places;

/// The value as it stands in a transcript: a number, a flag as -1 or 0, a text as a word. Colours
/// are signed 32-bit numbers; a list is its numbers, "none" before it holds any. Nothing for a name
/// that is no session value.
[[nodiscard]] std::optional<std::string> session_value(const Session& session,
                                                       std::string_view name, const Places& places);

} // namespace velmora::driver
