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
/// commands; message 31 when none runs. One that is busy is connected
/// without its texts and without a document. Always safe to call again.
void ReconectaAcad();

/// Makes the application's active document the connected one, with the state of wininfo and of the
/// commands that need a document.
void take_active_document();

/// The connected document. Raises 91 while there is none.
[[nodiscard]] std::shared_ptr<AcadDocument> connected_document();

} // namespace velmora
