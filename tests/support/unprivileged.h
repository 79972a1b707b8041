// What a machine refuses to an ordinary user, for tests that may run as root.
#pragma once

#ifdef __linux__

#include "support/temporary_folder.h"

#include <sys/mount.h>
#include <unistd.h>

namespace velmora::test {

/// While it lives, root acts as a user without any rights; any other user stays who he is.
class OrdinaryUser {
  public:
    OrdinaryUser() : was_root_(geteuid() == 0) {
        constexpr uid_t nobody = 65534;
        refused_ = was_root_ && seteuid(nobody) != 0;
    }
    ~OrdinaryUser() {
        if (was_root_ && !refused_)
            refused_ = seteuid(0) != 0;
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    /// False where root can't act as another: permissions say nothing then.
    [[nodiscard]] bool stands() const { return !refused_; }

  private:
    bool was_root_;
    bool refused_ = false;
};

/// A disk of so many bytes, in memory; bounded, since an unbounded one takes the machine's.
class SmallDisk {
  public:
    explicit SmallDisk(std::size_t bytes) {
        const std::string options = "mode=0777,size=" + std::to_string(bytes);
        mounted_ = mount("tmpfs", folder_.path().c_str(), "tmpfs", 0, options.c_str()) == 0;
    }
    ~SmallDisk() {
        if (mounted_)
            umount2(folder_.path().c_str(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    /// False where the user may not mount.
    [[nodiscard]] bool stands() const { return mounted_; }
    [[nodiscard]] std::string path(std::string_view name) const { return folder_.path(name); }
    [[nodiscard]] const std::filesystem::path& path() const { return folder_.path(); }

  private:
    TemporaryFolder folder_;
    bool mounted_ = false;
};

} // namespace velmora::test

#endif
