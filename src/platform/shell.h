// The desktop: programs for files, the recycle bin, sounds.
#pragma once

#include <string_view>

namespace velmora {

class Shell {
  public:
    virtual ~Shell() = default;
    /// Opens a file, page or address with its program; 33 or more when that started.
    virtual int open(std::string_view target) = 0;
    /// Plays a sound file and returns at once; a machine without sound stays silent.
    virtual void play(std::string_view file) = 0;
    /// To the recycle bin, or a plain delete where a path has none. True when the file is gone.
    virtual bool recycle(std::string_view path) = 0;
    /// To the recycle bin alone. False where a path has none: the file then stands. Where nobody
    /// tells the two apart, a delete counts as a bin.
    virtual bool to_bin(std::string_view path) { return recycle(path); }
    /// Waits until what was written to the file, or the names in the folder, are on the disk.
    /// Raises 57, 61.
    virtual void settle(std::string_view /*path*/) {}
};

} // namespace velmora
