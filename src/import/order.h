// Orders and sizes of chains that a person chooses once they are read.
#pragma once

#include "import/imported.h"

#include <span>

namespace velmora::imports {

/// One after the other in the order given; each is turned so that its nearer end follows. Closed
/// ones are entered and left at their own start.
[[nodiscard]] Chain joined(std::span<const Chain> chains);

/// Along x before y: a closed chain begins there, an open one with the end that lies nearer to it.
void start_leftmost(Chain& chain);
void start_rightmost(Chain& chain);
/// At the rightmost place, and where that is an edge of its own at the end of it that lets the
/// chain run over everything else first: the edge comes last.
void start_at_trailing_edge(Chain& chain);

/// A closed chain runs so; its first point stays the first. An open one stays as it is.
void run_counter_clockwise(Chain& chain);
void run_clockwise(Chain& chain);
void reverse(Chain& chain);

void scale(Chain& chain, double factor);
/// To a width; nothing where it has none.
void scale_to_chord(Chain& chain, double chord);
/// Removes points that lie where the one before lies; how many.
std::size_t remove_doubles(Chain& chain);

} // namespace velmora::imports
