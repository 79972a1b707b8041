// The boxes and lists of the window ver_corte: their entries, the numbers in them, and where they
// are kept from one time to the next.
#pragma once

#include "cutting/cut_report.h"
#include "forms/cut_at_hand.h"
#include "forms/cut_words.h"

#include <string>

namespace velmora {

/// The lists as they stand at the start, the boxes as they were kept.
void fill_cut_lists(const CutWords& words);
void read_cut_boxes();
/// Keeps what the boxes hold; nothing is written where all of it is kept already.
void keep_cut_boxes();

/// The number of a box, with "." or ","; `otherwise` where there is none, or one below 0.
[[nodiscard]] double number_or(const std::string& box, double otherwise);
/// Those of the boxes; those as shipped where a box holds no number.
[[nodiscard]] cutting::Thresholds cut_thresholds();
/// Millimetres a minute; 0 where the box holds none.
[[nodiscard]] double cut_speed();
/// How many times as fast as the machine the wire is shown.
[[nodiscard]] double cut_pace();

[[nodiscard]] CutStage cut_stage();
void choose_stage(CutStage stage);
[[nodiscard]] CutPlane cut_plane();

/// Which joined pairs are drawn beside those of sync points: each n-th; 0 for none.
struct CutJoins {
    std::size_t each = 1;
    bool sync = true;
};
[[nodiscard]] CutJoins cut_joins();

} // namespace velmora
