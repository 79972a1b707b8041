// What every command that needs a shape asks first.
#pragma once

namespace velmora {

/// There is a shape to work on, that is more than one point; message 37 otherwise.
[[nodiscard]] bool shape_at_hand();

} // namespace velmora
