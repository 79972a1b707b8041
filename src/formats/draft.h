// A file on its way: written beside the one that it replaces, it takes that one's place when it is
// whole and on the disk. Whatever ends the program on the way, the old bytes are there until the
// new ones are.
#pragma once

#include "runtime/file_beside.h"

#include <optional>
#include <string>
#include <string_view>

namespace velmora {

class Draft {
  public:
    /// An empty file beside the target; in the program's folder where the target's own takes no new
    /// file but the target may be written over. Raises 75 for what is no file, 76, 70, 61.
    explicit Draft(std::string_view target);

    /// Where to write.
    [[nodiscard]] const std::string& path() const { return fresh().path(); }
    /// Takes the permissions of the target, where it is there. Raises 70, 75.
    void take_permissions() const { fresh().take_permissions(); }

    /// Both of the following.
    void take_place();
    /// Waits until the draft is on the disk; then the target, where it is there, goes to the
    /// recycle bin. Where there is none for it, it stands. Raises 57, 61.
    void retire_target() const;
    /// Takes the target's name, over what stands there. Raises 70, 75, 57, 61.
    void take_name();

  private:
    [[nodiscard]] const runtime::FileBeside& fresh() const { return beside_ ? *beside_ : *apart_; }
    void write_over();

    std::string target_;
    std::optional<runtime::FileBeside> beside_;
    std::optional<runtime::FileBeside> apart_; ///< in the program's folder
};

} // namespace velmora
