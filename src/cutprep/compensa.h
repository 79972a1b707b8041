// Cut compensation: an outline beside the shape, off by what wire or cutter takes away, and the
// logic of the window Compensa.
#pragma once

namespace velmora {

/// Makes Forma.Paralela from Forma.Pto: each point moves by `merma`, in the document's units, at
/// right angles to the chord that leaves it; the sign of the chord's slope is thrown away, on
/// purpose. The last point stays. No error route: raises 6 where the arithmetic leaves f64.
void compensate(double merma);

void Compensa_Load();
/// The text of Txt_merma changed (it stands in session.Compensa).
void Txt_merma_Change();
/// A key of the box: the key to take, 0 to swallow it.
[[nodiscard]] int Txt_merma_KeyPress(int key);
void Compensa_cmd_ok_Click();
void Compensa_cmd_cancel_Click();

} // namespace velmora
