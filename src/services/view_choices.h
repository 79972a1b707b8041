// The stored choices of the view. A choice that was never changed is not stored.
#pragma once

namespace velmora {

/// Reads them into the session; what is no choice counts as never made.
void read_view_choices();
/// Writes those that differ from what is stored. They stay where the store keeps its values: the
/// caller has it keep them.
void write_view_choices();

} // namespace velmora
