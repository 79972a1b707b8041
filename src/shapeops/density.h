// Fewer or more points on the same outline.
#pragma once

#include "document/forma.h"

#include <cstdint>
#include <optional>

namespace velmora {

/// The outline without `count` points, the whole part of it counting: the one at `first` and then
/// one after every `jump` that stay. A place beyond the end is brought back by one turn, with a
/// fraction it goes to the nearest point, ties to even. What stays keeps its sync mark and loses
/// the other; where nothing stays, one zeroed record does. Empty where one turn does not bring a
/// place back.
[[nodiscard]] std::optional<Array<Pto>> thinned(const Array<Pto>& outline, std::int32_t first,
                                                double count, double jump);

/// Cuts each segment, the closing one too, into so many `parts`, from 1, by points on a straight
/// line. Raises 6 beyond 32 bits of points, nothing is changed then; 6 where the arithmetic leaves
/// f64, and what was cut before stays.
void multiply_points(Array<Pto>& outline, std::int32_t parts);

} // namespace velmora
