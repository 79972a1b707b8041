// The one rule of the numeric text boxes: which keys pass, and what a refused key does.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Key codes of the rule, as a key press delivers them: characters.
namespace key_code {
inline constexpr int backspace = 8;
inline constexpr int enter = 13;
} // namespace key_code

/// A box, its text, and what a refused key makes of it.
struct NumericBox {
    std::string_view window;
    std::string_view control;
    std::string& text;
    std::string_view also = {};        ///< characters that pass besides digits, backspace and Enter
    std::string_view reset_text = "0"; ///< text after a refused key
    void (*changed)() = nullptr;       ///< runs when a reset changes the text
};

/// The key to take, or 0 when it is refused: then message 6 was shown, the box was reset.
[[nodiscard]] int numeric_key(const NumericBox& box, int code);

/// The text reads as another number than 0. Raises 6 beyond f64.
[[nodiscard]] bool reads_non_zero(const std::string& text);

/// Puts the reset text into the box, a change when it differs, and gives the box the focus.
void reset_box(const NumericBox& box);

} // namespace velmora
