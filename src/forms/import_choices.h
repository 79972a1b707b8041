// The choices of the window importar: its lists and boxes, and what they ask of the import.
#pragma once

#include "forms/import_words.h"
#include "import/imported.h"

#include <optional>

namespace velmora {

/// The lists as they stand before a file is read.
void fill_import_lists(const ImportWords& words);
/// What the file that was read leaves to choose; its kind is chosen where it could be told.
void offer_import_choices(const imports::Imported& imported, const ImportWords& words);
/// The start of the cut and the doubles for a kind, before a person chooses.
void choose_usual_order(imports::Kind kind, const ImportWords& words);

/// Every box holds nothing or a number that it can take.
[[nodiscard]] bool import_boxes_hold_numbers();
[[nodiscard]] imports::Choices import_choices(const ImportWords& words);
/// The number of a box, with "." or ","; none where it is empty.
[[nodiscard]] std::optional<double> number_in(const std::string& box);

/// The chain in the order of the cut that is chosen.
void put_in_chosen_order(imports::Chain& chain, const ImportWords& words);

} // namespace velmora
