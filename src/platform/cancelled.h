// The user's way out of what takes long.
#pragma once

namespace velmora {

/// Unwinds a reading or a capture that the user cancelled. No run-time error, so that no trap of
/// the logic takes it.
struct Cancelled {};

} // namespace velmora
