// The workbench's own readers: a file into an outline given to them, its totals into the boxes of a
// side. Neither asks whether to go on after a fault: the points read so far stay, `ok` is 0.
#pragma once

#include "cutprep/side.h"
#include "document/flag.h"
#include "document/forma.h"

#include <string>
#include <string_view>

namespace velmora {

/// A file of fixed records with sync points. A sync record that equals several points marks and
/// counts them all.
void CargaSLWSINC2(std::string_view fichero, Array<Pto>& pts, std::string_view lado, Flag& ok);

/// A file of the dialect SLWMD, under the coordinate limit; when that refuses, `pts` is emptied.
/// The search for sync points runs to the last index of Forma.Pto, on purpose: with a shorter
/// document the tail isn't searched, with a longer one the first sync point of the file ends in the
/// error box with 9.
void CargaSLWMD_a(std::string_view fichero, Array<Pto>& pts, std::string_view lado, Flag& ok);

/// The file into the side by the reader of its dialect: true when it was read whole. Any other
/// dialect is refused in a box.
[[nodiscard]] bool read_side(const Side& side, const std::string& path);

} // namespace velmora
