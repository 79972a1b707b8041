// A text box that the program fills.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Puts a text into a box; true when another one was there.
[[nodiscard]] bool replace_text(std::string& box, std::string_view text);

/// Puts a text into a box; `changed` runs when it differs from what was there, as it does when the
/// user types.
template <class Changed>
void put_text(std::string& box, std::string_view text, Changed&& changed) {
    if (replace_text(box, text))
        changed();
}

} // namespace velmora
