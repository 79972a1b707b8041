// A folder of one test's own, removed at its end.
#pragma once

#include "runtime/paths.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

namespace velmora::test {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::random_device random;
        do {
            folder_ = std::filesystem::temp_directory_path() /
                      ("velmora-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(folder_));
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return folder_; }
    /// A file's path as UTF-8 text.
    [[nodiscard]] std::string path(std::string_view name) const {
        return runtime::join(runtime::path_text(folder_), name);
    }
    /// Writes a file, bytes as they stand; its path as UTF-8 text.
    std::string write(std::string_view name, std::string_view bytes) const {
        std::ofstream file(runtime::native_path(path(name)), std::ios::binary);
        file << bytes;
        return path(name);
    }
    [[nodiscard]] std::string read(std::string_view name) const {
        std::ifstream file(runtime::native_path(path(name)), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::filesystem::path folder_;
};

} // namespace velmora::test
