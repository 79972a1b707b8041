// The commands on sync points. The shown totals are kept by hand, nothing recounts them.
#pragma once

namespace velmora {

/// Mark and clear the selected point. A point that is marked, or plain, already stays so.
void Insert_Pto_Sinc();
void Delete_Pto_Sinc();
/// Mark all but point 0; clear all. Message 37 without a shape.
void Insert_All_Pto_Sinc();
void Delete_All_Pto_Sinc();
/// Says how many plain points lie up to the next sync point; nothing where there is none.
void Pts_To_Next_Sinc();

} // namespace velmora
