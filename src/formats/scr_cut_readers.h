// The readers of outlines by line: the script of a CAD, the file of a cutting machine. Each fills
// Forma.Pto from a file and returns -1 on success, 0 on failure, with its own error box and "Cancel
// Load?" question.
#pragma once

#include <cstdint>
#include <string_view>

namespace velmora {

std::int16_t CargaSCR(std::string_view path);
std::int16_t CargaCUT(std::string_view path);

/// CargaSCR takes a point from the line.
[[nodiscard]] bool is_script_point(std::string_view line);

} // namespace velmora
