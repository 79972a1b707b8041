// The options of the session: form of the output, density of curves, decimals.
#pragma once

#include "document/flag.h"

#include <cstdint>

namespace velmora {

struct OptionState {
    Flag GenDATSinc = True, GenSCR = False, GenDATPerfil = False;
    Flag OptimizeOnGen = True;
    Flag RedimCapture = True;
    std::int32_t Precision = 6;
    std::int32_t PutArc = 25;
    std::int32_t PutCircle = 50;
};

namespace state {
extern OptionState& options;
}

} // namespace velmora
