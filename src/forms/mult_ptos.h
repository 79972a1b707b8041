// The logic of the window Mult_Ptos: multiplies the points by a whole factor, linearly between.
#pragma once

namespace velmora {

/// Writes the window's own captions into its table, and reads them from there: on purpose. Raises
/// as CreaLiterales does.
void Mult_Ptos_Load();
/// The text of Combo1 changed; an entry of its list was clicked.
void Combo1_Change();
void Combo1_Click();
/// Shows the number of points to come and refuses 32001 and more. No event calls it, on purpose: it
/// is ready for Combo1.
void ActualizaNuevoN();
/// A factor whose whole part is below 1 changes nothing, and the window stays. Raises 6 beyond 32
/// bits of points.
void Mult_Ptos_cmd_ok_Click();
void Mult_Ptos_cmd_cancel_Click();

} // namespace velmora
