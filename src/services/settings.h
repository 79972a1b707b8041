// The stored settings: colours, defaults, language, sound. Numbers are stored as text with "." and
// read with either separator.
#pragma once

#include "runtime/error.h"

#include <cstdint>
#include <optional>
#include <string>

namespace velmora {

/// Reads all settings into the session, with their defaults; nothing is validated. A stored value
/// that is no number raises 13, one that does not fit 6; the error's place names section, key and
/// value.
void LeeSettings();
/// Writes all of them, but for those that another window of the program changed since they were
/// read and this one did not; a box tells where they can't be kept.
void GuardaSettings();

/// Has the store keep what was saved; a box tells where it can't.
void keep_settings();

/// A setting with a text for it.
struct StoredSetting {
    std::string section, key, value;
};

/// The setting that a fault of LeeSettings names, with its default; nothing for any other fault.
[[nodiscard]] std::optional<StoredSetting> setting_at_fault(const RuntimeError& failure);

/// The setting "sound" alone: 1 = play the sound files. Raises as LeeSettings does.
[[nodiscard]] std::int16_t read_sound();
/// Stores Ver and SubVer.
void save_version();

} // namespace velmora
