// The point menu's commands that change the number of points or the start of cutting, at the
// selected point. None has an error route of its own. Keys and other commands run some of them too.
#pragma once

namespace velmora {

/// Puts a point before the selected one, in the middle of its neighbours; before point 0 by a rule
/// of its own. Raises 9 without a selection.
void Insert_Pto();
/// Takes the selected point out; messages 37 and 76 where a shape would have fewer than 3 points.
void Delete_Pto();
/// Turns the order of cutting so that the selected point is the first. PtoSel keeps its number.
void Set_CutStart();
/// Inserts a line from the machine's zero line to the selected point. Raises 9 without a selection.
void insert_ini();
/// Starts the insertion of points by hand after the selected one.
void Insert_N_Ptos();

} // namespace velmora
