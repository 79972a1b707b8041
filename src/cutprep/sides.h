// The workbench of two sides: the window's own load and activation, and the buttons that load a
// side.
#pragma once

namespace velmora {

/// Load: the controls as designed, PtosA and PtosB emptied (the results of an earlier round stay),
/// literals.
void ajuste_Load();
/// The window got the focus from another window of the program, or opens: its notice.
void ajuste_Activate();

/// Asks for a file and loads the side. When both sides hold something their sync totals are
/// compared: equal ones enable cmd_opt, others show message 91.
void cmd_selA_Click();
void cmd_selB_Click();

/// Shows ajuste_opt; then Cmd_Ajuste is enabled, whatever was done there.
void cmd_opt_Click();
void ajuste_cmd_exit_Click();

} // namespace velmora
