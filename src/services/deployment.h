// What whoever hands out the program puts in its own place: addresses and names.
#pragma once

#include <string_view>

namespace velmora::deployment {

inline constexpr std::string_view support_address = "soporte@velmora.example";
inline constexpr std::string_view web_page = "https://velmora.example/";
/// The names that the about box shows.
inline constexpr std::string_view helpers = "A todos los que han probado Velmora cortando sus alas";

} // namespace velmora::deployment
