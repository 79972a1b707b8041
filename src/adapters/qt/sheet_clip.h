// Cuts a segment at the edges of a sheet, so that no place far beyond the paper reaches a printer
// whose numbers are short.
#pragma once

#include <QLineF>
#include <QRectF>
#include <optional>

namespace velmora {

/// The part of the segment inside the box, edges included; nothing when it passes by.
[[nodiscard]] std::optional<QLineF> part_inside(const QLineF& line, const QRectF& box);

} // namespace velmora
