// The Spanish messages as the build took them from their table.
#pragma once

#include <span>

namespace velmora {

struct SpanishMessage {
    int code;
    int buttons;
    const char* text;
    const char* title;
};

[[nodiscard]] std::span<const SpanishMessage> spanish_messages();

} // namespace velmora
