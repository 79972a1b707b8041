// Numbers of foreign texts brought to the machine's decimal separator before they are converted.
// The results look into `text`, or into `room` where something had to change.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Every "." and "," becomes SepDecimal.
[[nodiscard]] std::string_view to_machine_separator(std::string_view text, std::string& room);

/// On a machine with "," every "." becomes ","; on one with "." nothing changes.
[[nodiscard]] std::string_view point_to_machine_separator(std::string_view text, std::string& room);

} // namespace velmora
