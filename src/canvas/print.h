// Printing the shape on the default printer.
#pragma once

namespace velmora {

/// Prints the shape with its axes at the present zoom, in twips to the unit, and with ShowPtosCtrl
/// a circle on every point, not on the sync points alone, on purpose. There is no scaling to the
/// sheet. Message 37 without a shape. CanvasX0 and CanvasY0 keep the paper's origin until the next
/// Dibuja. From the outline on its error box shows what fails, 482 without a printer; what the
/// extents or the axes raise before that rises to the caller.
void PrintPic();

} // namespace velmora
