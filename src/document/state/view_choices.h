// What the user chose to see of the view, beyond the stored settings of the parameters window.
#pragma once

#include "document/flag.h"

namespace velmora {

struct ViewChoiceState {
    Flag FitOnOpen = False; ///< the shape is fitted after a file was opened
    Flag ShowRulers = True;
    Flag ShowPosition = True; ///< of the pointer, in the status bar
};

namespace state {
extern ViewChoiceState& view_choices;
}

} // namespace velmora
