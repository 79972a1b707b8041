// A file that is written beside another and takes its name when it is whole: until then the other
// stands as it was, and a write that fails leaves nothing behind.
#pragma once

#include <string>
#include <string_view>

namespace velmora::runtime {

class FileBeside {
  public:
    /// Finds a name in the folder of `target` that no other program finds; nothing is written yet.
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

/// A path in the folder that is free, and that no other running program comes upon: between the two
/// texts stands a number by chance. Short, so that there is one beside a file of the longest name.
[[nodiscard]] std::string free_name_in(std::string_view folder, std::string_view before,
                                       std::string_view behind);

} // namespace velmora::runtime
