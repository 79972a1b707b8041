// How long the program waits for a CAD.
#pragma once

#include <chrono>

namespace velmora {

/// How long a CAD may think: before it counts as busy when it is looked for, and later as gone. A
/// pick waits for the user without an end.
struct CadPatience {
    std::chrono::milliseconds to_attach = std::chrono::seconds(5);
    std::chrono::milliseconds to_answer = std::chrono::seconds(60);
};

} // namespace velmora
