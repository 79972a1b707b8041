// The window Compensa: asks for what wire or cutter takes away and makes Forma.Paralela.
#pragma once

#include "document/forma.h"
#include "document/windows/compensa.h"

namespace velmora {

void Compensa_Load();
/// The text of Txt_merma changed (it is in state::Compensa).
void Txt_merma_Change();
/// A key of the box: the key to take, 0 to swallow it.
[[nodiscard]] int Txt_merma_KeyPress(int key);
/// Raises 6 where the arithmetic leaves f64; Forma.Paralela stays then.
void Compensa_cmd_ok_Click();
void Compensa_cmd_cancel_Click();

} // namespace velmora
