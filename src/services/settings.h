// The stored settings: colours, defaults, language, sound.
#pragma once

namespace velmora {

/// Reads all settings into the session, with their defaults. A stored value that is no number
/// raises 13, and the error's description names its key.
void LeeSettings();
/// Writes all of them.
void GuardaSettings();

} // namespace velmora
