// The connection to the CAD.
#pragma once

#include "cad/autocad.h"

namespace velmora {

/// What is connected; empty while AcadOpen / AcadDocLoaded are false.
struct AcadConnection {
    std::shared_ptr<AcadApplication> AcadApp;
    std::shared_ptr<AcadDocument> AcadDoc;
};
AcadConnection& acad();

/// Attaches to a running CAD and its active document, with the state of wininfo and of the three
/// commands; message 31 when none runs. Always safe to call again.
void ReconectaAcad();

} // namespace velmora
