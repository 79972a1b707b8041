// What another program did to the outline's file meanwhile.
#pragma once

#include <string>

namespace velmora {

/// Notes the file as it is now on the disk.
void note_seen(const std::string& path);
/// The outline is in no file yet, whatever its name says.
void note_unwritten();
/// The file was noted under this path, and is another one now.
[[nodiscard]] bool changed_since_seen(const std::string& path);
/// The file was noted under this path, and its folder is gone.
[[nodiscard]] bool folder_gone_since_seen(const std::string& path);

} // namespace velmora
