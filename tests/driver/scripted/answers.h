// What a person would answer, laid out by the script: a queue for each kind of box.
#pragma once

#include "platform/dialogs.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <string>

namespace velmora::driver {

/// In the order in which they will be taken; an empty optional is a cancel.
struct Answers {
    std::deque<int> boxes;
    std::deque<std::optional<std::string>> inputs;
    std::deque<std::optional<std::string>> paths;
    std::deque<std::optional<std::uint32_t>> colours;
    std::deque<std::optional<FontChoice>> fonts;
};

/// The button that a box answers by itself: OK, else Yes.
[[nodiscard]] int default_answer(int buttons_and_icon);

} // namespace velmora::driver
