// Plays the program's sound files without making anyone wait.
#pragma once

#include <memory>
#include <string>

namespace velmora {

class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;
    /// Returns at once. A file that is missing, or a machine without sound, stays silent.
    virtual void play(const std::string& file) = 0;
};

[[nodiscard]] std::unique_ptr<SoundPlayer> make_sound_player();

} // namespace velmora
