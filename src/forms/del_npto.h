// The logic of the window del_Npto: takes points out of the shape at a regular interval.
#pragma once

#include "document/windows/del_npto.h"

namespace velmora {

void del_Npto_Load();
/// The text of Txt_JumpPoints changed (it is in state::del_Npto).
void Txt_JumpPoints_Change();
/// A key of a box: the key to take, 0 to swallow it.
[[nodiscard]] int Txt_JumpPoints_KeyPress(int key);
[[nodiscard]] int Txt_Numpoints2del_KeyPress(int key);
/// Another control took the focus from Txt_Numpoints2del.
void Txt_Numpoints2del_LostFocus();
/// Removes the points, the selected one first. Where the one wrap does not bring a position back
/// into the array: message 83, nothing changes, the window stays.
void del_Npto_cmd_ok_Click();
void del_Npto_cmd_cancel_Click();

} // namespace velmora
