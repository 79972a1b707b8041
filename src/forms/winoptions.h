// The side window winoptions: its load, what its controls do to the session, how it rolls up.
#pragma once

#include "document/windows/winoptions.h"

namespace velmora {

/// Load. Raises what LeeSettings does.
void winoptions_Load();
/// The window got the activation: it rolls down. It lost it: it rolls up unless pinned.
void winoptions_Activate();
void winoptions_Deactivate();
/// The height that follows from it, in twips.
[[nodiscard]] int winoptions_height();

/// The three output types exclude each other. The file's name takes the type's extension, FileName
/// the name as it is in TxtDat_File.
void ChkDATSinc_Click();
void ChkSCR_Click();
void Chk_DATPerfil_Click();

/// A check box was ticked or cleared (it is in state::winoptions).
void ChkPtos_Click();
void ChkPtosCtrl_Click();
void ChkCoords_Click();
void chk_optimize_Click();
void chk_Redim_Capture_Click();

/// A key of a numeric box: the key to take, 0 to swallow it.
[[nodiscard]] int TxtPutArc_KeyPress(int key);
[[nodiscard]] int TxtPutCircle_KeyPress(int key);
[[nodiscard]] int TxtPrecision_KeyPress(int key);
/// Enter takes the zoom from the text, with either separator. Raises 13 for a text that is not a
/// number, 6 beyond the decimal type.
[[nodiscard]] int Txt_zoom_KeyPress(int key);

} // namespace velmora
