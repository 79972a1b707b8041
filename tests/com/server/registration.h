// The stand-in's entry among the machine's classes.
#pragma once

#include "adapters/com/windows_headers.h"

namespace velmora::test {

/// The stand-in's own class, {5C0E62D1-93B7-4E0C-A1F4-2B7D8E6A4C19}.
inline constexpr CLSID kStandInClass = {
    0x5C0E62D1, 0x93B7, 0x4E0C, {0xA1, 0xF4, 0x2B, 0x7D, 0x8E, 0x6A, 0x4C, 0x19}};

/// Takes the class name for this program. False where the name belongs to another program or the
/// registry can't be written: a real CAD keeps its name.
[[nodiscard]] bool register_class();
/// Gives the name back. False where it is not the stand-in's.
[[nodiscard]] bool unregister_class();

} // namespace velmora::test
