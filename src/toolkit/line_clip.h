// Cuts a segment at the edges of a sheet or a picture, so that no place far beyond it reaches a
// printer whose numbers are short or a painter whose arithmetic gives up there.
#pragma once

#include <QLineF>
#include <QRectF>
#include <optional>

namespace velmora {

/// The part of the segment inside the box, edges included; nothing when it passes by.
[[nodiscard]] std::optional<QLineF> part_inside(const QLineF& line, const QRectF& box);

} // namespace velmora
