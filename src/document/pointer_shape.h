// The shapes of the screen's pointer and of the canvas's, under their numbers.
#pragma once

namespace velmora::pointer {

enum Shape : int { standard = 0, cross = 2, up_arrow = 10, hourglass = 11 };

} // namespace velmora::pointer
