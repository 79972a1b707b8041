// The side window wininfo: its load, and how it rolls up.
#pragma once

namespace velmora {

/// Load. Raises what the literals do.
void wininfo_Load();
/// The window got the activation: it rolls down. It lost it: it rolls up unless pinned.
void wininfo_Activate();
void wininfo_Deactivate();
/// The height that follows from it, in twips.
[[nodiscard]] int wininfo_height();

} // namespace velmora
