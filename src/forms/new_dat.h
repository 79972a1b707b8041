// The window New_Dat: starts a document from a figure of unit size, or with one point from which
// the shape is drawn by hand. Its values are in state::New_Dat.
#pragma once

#include "document/windows/new_dat.h"

namespace velmora {

void New_Dat_Load();
/// The option was chosen: its frame is enabled, the other's is not, and no figure is named.
void SSOpt_predef_Click();
void SSOpt_create_Click();
/// A tile: 0 square, 1 triangle, 2 circle. The circle asks for its number of points, and only a
/// number of 4 or more closes that box, on purpose.
void New_Dat_Picture1_Click(int index);
/// Makes the document and closes the window. Reads the settings first, so that a zoom changed since
/// gives way to the stored one. Raises as LeeSettings does, 7 for a circle beyond memory.
void New_Dat_cmd_ok_Click();
void New_Dat_cmd_cancel_Click();

} // namespace velmora
