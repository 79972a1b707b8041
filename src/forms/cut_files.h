// The files that the window ver_corte looks at: two results, or a program of both ends of the wire.
#pragma once

#include "cutting/sides.h"
#include "forms/cut_words.h"

#include <optional>
#include <string>

namespace velmora {

struct CutFiles {
    cutting::Sides sides;
    std::string fault; ///< a sentence; empty where both were read
};

/// A file that one side is read from has nothing of the other.
[[nodiscard]] CutFiles read_cut_files(const std::string& side_A, const std::string& side_B,
                                      const CutWords& words);

/// The file holds both sides: a program for four axes.
[[nodiscard]] bool holds_both_sides(const std::string& path);

} // namespace velmora
