#include "cad/entity_progress.h"

#include "document/feedback.h"
#include "document/windows/velmora.h"

namespace velmora {

void start_entity_progress(double points) {
    state::Velmora.pbar2 = {.Min = 0, .Max = points, .Value = 0};
}

void step_entity_progress() {
    state::Velmora.pbar2.Value += 1;
    DoEvents();
}

} // namespace velmora
