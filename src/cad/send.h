// The outline into a new drawing of a running CAD.
#pragma once

namespace velmora {

/// Draws the outline as one closed polyline into a new drawing and leaves the CAD alone on the
/// screen; message 31 when none runs. Own error route: a box, and the drawing stays as far as it
/// got. Nothing checks whether there is a shape, on purpose.
void SendToCad();

} // namespace velmora
