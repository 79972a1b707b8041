// What the window ver_corte saves: the place that is offered, the writing, and what is said of it.
#pragma once

#include "forms/cut_words.h"

#include <string>
#include <string_view>

namespace velmora {

/// Asks for a place of a kind of file such as "PDF" with the extension ".pdf"; beside the sides
/// under the name of the first one is offered. Empty where the user gave up.
[[nodiscard]] std::string ask_for_cut_place(std::string_view title, std::string_view kind,
                                            const std::string& extension, const CutWords& words);

/// True when it is written; a box tells where not.
[[nodiscard]] bool write_cut_file(const std::string& path, std::string_view bytes,
                                  const CutWords& words);

} // namespace velmora
