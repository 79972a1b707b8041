// Writing the two results of the adjustment.
#pragma once

namespace velmora {

/// Writes PtosA2 and PtosB2 to Txt_File_A2 and Txt_File_B2 as records; an earlier file goes to the
/// recycle bin. Consecutive points of equal text are written once, per side. No error route: a
/// fault of a file raises and leaves the hourglass on and cmd_exit disabled.
void Cmd_save_Click();

} // namespace velmora
