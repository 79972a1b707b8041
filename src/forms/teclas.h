// The window teclas, the list of shortcut keys.
#pragma once

namespace velmora {

void teclas_Load();
void teclas_Command1_Click();

} // namespace velmora
