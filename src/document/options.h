// The option boxes of winoptions as the logic sets them: a text that differs from what stood there
// is a change of the box, and has the change's effect.
#pragma once

#include <string_view>

namespace velmora {

/// The text of TxtPrecision changed: once the first activation is past, Apply_Precision runs when
/// its value is above 0. The text is not read into Precision, on purpose.
void TxtPrecision_Change();

/// Sets TxtPrecision; another text than before is a change.
void set_TxtPrecision(std::string_view text);

/// The boxes TxtPutArc, TxtPutCircle, TxtPrecision, Txt_zoom and their working copies from the
/// stored defaults.
void take_defaults();
/// ZoomFactor from the stored start zoom, 1.0 where that is 0 or below: what divides by the zoom
/// comes before the next layout.
void take_start_zoom();

} // namespace velmora
