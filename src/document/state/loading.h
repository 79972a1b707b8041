// What the readers share: the limit of a coordinate, the scale of a load, the numbered files.
#pragma once

#include "runtime/file_table.h"

namespace velmora {

struct LoadingState {
    double EscalaCarga = 1;
    double MaxCoordCarga = 0;
    double LimiteCoord = 25000;
    runtime::FileTable files;
};

namespace state {
extern LoadingState& loading;
}

} // namespace velmora
