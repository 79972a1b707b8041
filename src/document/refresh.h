// What every operation calls after it changed the outline, declared in one place so that rooms need
// not know each other for it. Each routine is in the room of its subject.
#pragma once

#include <string_view>

namespace velmora {

/// Brings Lst_Coords in line: "NEWFILE" and "UPDATE" rebuild it, "INSERT" and "DELETE" one row at
/// PtoSel, any other key, "UPDATE_1" too, does nothing. (document/coord_list)
void Carga_List_Coords(std::string_view key);

/// Extents, figures of wininfo, zoom guard, scroll position. (canvas/layout)
void Define_Layout();

/// Repaints the canvas from nothing. (canvas/dibuja)
void Dibuja();

/// Dibuja, unless NoRedraw is set.
void Dibuja_unless_NoRedraw();

/// Rounds every coordinate to Precision decimals, ties to even. (shapeops/transforms)
void Apply_Precision();

/// Empties the canvas to its background. (canvas/dibuja)
void clear_canvas();

} // namespace velmora
