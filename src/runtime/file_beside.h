// A file that is written beside another and takes its name when it is whole: until then the other
// stands as it was, and a write that fails leaves nothing behind.
#pragma once

#include <string>
#include <string_view>

namespace velmora::runtime {

class FileBeside {
  public:
    /// Finds a free name in the folder of `target`; nothing is written yet.
    explicit FileBeside(std::string_view target);
    /// Removes what did not take the name.
    ~FileBeside();
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    /// Where to write.
    [[nodiscard]] const std::string& path() const { return path_; }
    /// The permissions of the target, where it is there. Raises 70, 75.
    void take_permissions() const;
    /// Takes the target's name, over what stands there. Raises 70, 75, 76, 57.
    void take_name() { take_name(target_); }
    /// Another name of the same folder. Raises likewise.
    void take_name(std::string_view name);

  private:
    std::string target_;
    std::string path_;
};

/// What a symbolic link leads to in the end; any other path as it is.
[[nodiscard]] std::string link_target(std::string_view path);

/// Removes a file that broke off, or empties it where it can't be removed, so that it takes no
/// room. Anything but a regular file, such as a device, is left alone. Never raises.
void remove_broken_off(std::string_view path);

} // namespace velmora::runtime
