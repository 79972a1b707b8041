// The coordinate list beside the canvas: rows, and the click that selects a point.
#pragma once

#include "document/windows/velmora.h"

#include <string>
#include <string_view>

namespace velmora {

/// Text of a row: index, ": ", X, two blanks, Y.
[[nodiscard]] std::string row_text(const CoordRow& row);

/// A click on a row with this text: selects the point that the text's number names, for the keys of
/// the canvas, or refreshes the list when there is no such point. Raises 13 for a text without a
/// number.
void Lst_Coords_Click(std::string_view text);
/// A key came to this row: the same, but the focus stays in the list, for the next key.
void Lst_Coords_Key(std::string_view text);

} // namespace velmora
