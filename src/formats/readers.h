// The readers: each fills Forma.Pto from a file and returns -1 on success, 0 on failure, with its
// own error box and "Cancel Load?" question. Where a copy is read in the file's stead, texts show
// the file's own path.
#pragma once

#include <cstdint>
#include <string_view>

namespace velmora {

std::int16_t CargaSLWS(std::string_view path);
std::int16_t CargaSLWSINC(std::string_view path);
std::int16_t CargaSLWMD(std::string_view path);
std::int16_t CargaSLWMD(std::string_view path, std::string_view shown_path);
std::int16_t CargaNOSLW(std::string_view path);
std::int16_t CargaNOSLW(std::string_view path, std::string_view shown_path);
std::int16_t CargaPROFILI(std::string_view path);
std::int16_t CargaPROFILI(std::string_view path, std::string_view shown_path);
std::int16_t CargaSCR(std::string_view path);
std::int16_t CargaCUT(std::string_view path);

} // namespace velmora
