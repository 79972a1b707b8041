// Whether a point is selected.
#pragma once

#include "document/forma.h"
#include "document/state/document.h"

namespace velmora {

/// A point is selected. An index beyond the array, as a recent file or Close can leave it, counts
/// as no selection.
[[nodiscard]] inline bool has_selection() {
    return state::document.PtoSel >= 0 && state::document.PtoSel <= Forma.Pto.upper();
}

} // namespace velmora
