// A whole text into a file, as every save of the program writes one.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// What stood there goes to the recycle bin once the new text is whole and on the disk. Raises the
/// faults of the file; what stood there stays then.
void write_text_file(const std::string& path, std::string_view text);

} // namespace velmora
