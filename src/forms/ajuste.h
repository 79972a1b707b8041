// The workbench of two sides, the window ajuste: its load and activation, and its buttons.
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

/// Makes PtosA2 and PtosB2 from PtosA and PtosB, and shows them on the way. Without an error route
/// of its own: a missing TEMP_AJUSTE, a side with fewer sync points than TxtTotalCtrlPtos_A says,
/// OptZ of 0 and the like raise, and leave the hourglass on: the failure is reported and stops this
/// command alone.
void Cmd_Ajuste_Click();

/// Writes PtosA2 and PtosB2 to Txt_File_A2 and Txt_File_B2; earlier files go to the recycle bin,
/// both before either is written. No error route: a fault of a file raises and leaves the hourglass
/// on and cmd_exit disabled.
void Cmd_save_Click();

/// Shows both sides together as they stand; it changes none of them.
void Cmd_VerCorte_Click();

void ajuste_cmd_exit_Click();

} // namespace velmora
