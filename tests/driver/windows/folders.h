// The folders of one run: everything that the program may touch lies in a temporary folder of the
// driver's own, besides the work folder that the caller may give.
#pragma once

#include <filesystem>
#include <string>

namespace velmora::driver {

class Folders {
  public:
    /// Makes the folders. `work` is the caller's folder, empty for one of the driver's own; `keep`
    /// leaves that one standing.
    Folders(const std::filesystem::path& work, bool keep);

    /// UTF-8, absolute, without a separator at the end.
    [[nodiscard]] std::string work() const;
    [[nodiscard]] std::string program() const;

    /// Points the process at these folders: home, settings, trash, current folder.
    void enter() const;
    /// The installed files, from beside the executable, into the program's folder.
    void install(const std::filesystem::path& from) const;
    /// Takes away what was made. Never raises.
    void remove() const noexcept;

  private:
    std::filesystem::path own_;
    std::filesystem::path work_;
    bool keep_;
};

} // namespace velmora::driver
