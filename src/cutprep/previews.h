// The small drawings of the adjustment window. Each routine draws one array into one picture under
// an error route of its own; an outline with no positive X or Y shows its box with number 11.
#pragma once

namespace velmora {

/// PtosA in Pic_A, PtosB in Pic_B.
void DibujaMini_A();
void DibujaMini_B();
/// PtosA2 in Pic_A, PtosB2 in Pic_B.
void DibujaNewMini_A();
void DibujaNewMini_B();
/// PtosA2 in New_Pic_A, PtosB2 in New_Pic_B. The error box of the first has the name of
/// DibujaNewMini_A, on purpose.
void DibujaDefMini_A();
void DibujaDefMini_B();

} // namespace velmora
