// The option boxes of winoptions as the logic sets them, and what the stored settings set: another
// text in a box is a change of the box, and has the change's effect.
#pragma once

#include <string_view>

namespace velmora {

/// The text of TxtPrecision changed: once the first activation is past, Apply_Precision runs when
/// its value is above 0. The text is not read into Precision, on purpose.
void TxtPrecision_Change();

/// Sets TxtPrecision; another text than before is a change.
void set_TxtPrecision(std::string_view text);

/// ZoomFactor from the stored start zoom, 1.0 where that is 0 or below: what divides by the zoom
/// comes before the next layout.
void take_start_zoom();
/// ZoomFactor and its box from the stored start zoom as it is; the layout that follows replaces
/// one of 0 or below.
void take_stored_zoom();

/// PutArc, PutCircle, Precision and ZoomFactor from the stored defaults, their boxes untouched.
void take_working_copies();

/// The order in which the working copies and their boxes take the stored defaults. It shows while
/// the shape is rounded to the new precision, when the windows run: what comes after is still old.
enum class Defaults { copies_first, one_by_one };

/// The working copies and the boxes TxtPutArc, TxtPutCircle, TxtPrecision, Txt_zoom from the stored
/// defaults; a start zoom of 0 or below is kept as 1.0 and shown as it is.
void take_defaults(Defaults order = Defaults::copies_first);

/// The back colour of the canvas and the colour of the hover label from the stored ones.
void take_colours();

} // namespace velmora
