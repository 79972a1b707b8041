// The program's own sounds, which lie beside it.
#pragma once

#include "document/state/program.h"
#include "platform/platform.h"
#include "platform/shell.h"

#include <string_view>

namespace velmora {

/// Plays a file of the program's folder, where the user wants to hear it.
inline void play_sound(std::string_view file) {
    if (state::program.Sound == 1)
        platform().shell.play(program_file(file));
}

} // namespace velmora
