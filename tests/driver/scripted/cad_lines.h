// The script's lines that describe the CAD: `cad running ...`, `cad line ...`, `cad pick ...`.
#pragma once

#include "scripted/cad.h"

#include <span>
#include <string>

namespace velmora::driver {

/// Carries out a line; `words` is what stands behind `cad`. A ScriptFault for what it can't be.
void cad_line(CadState& state, std::span<const std::string> words);

} // namespace velmora::driver
