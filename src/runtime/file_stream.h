// One open file of the system with a buffer of its own for each direction. Faults are raised by
// the run-time's numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmora::runtime {

struct CloseFile {
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

/// For reading; raises 53 and others.
[[nodiscard]] FileHandle open_present(const std::filesystem::path& path);
/// For writing, emptied; raises 76 and others.
[[nodiscard]] FileHandle open_anew(const std::filesystem::path& path);
/// For reading and writing, made when missing; for reading alone where the file can't be written.
[[nodiscard]] FileHandle open_to_update(const std::filesystem::path& path);

/// What has been read ahead and not been taken yet.
class ReadBuffer {
  public:
    [[nodiscard]] std::string_view waiting() const {
        return {bytes_.data() + start_, end_ - start_};
    }
    void take(std::size_t count) { start_ += count; }
    /// Reads on after what waits; false at the end of the file. Views of `waiting` end here.
    /// Raises 57 or 75 when the device fails.
    bool more(std::FILE* file);
    /// Forgets what waits.
    void clear() { start_ = end_ = 0; }

  private:
    void make_room();

    std::vector<char> bytes_;
    std::size_t start_ = 0;
    std::size_t end_ = 0;
};

/// What waits to be written.
class WriteBuffer {
  public:
    /// Raises as `flush` does.
    void add(std::FILE* file, std::string_view bytes);
    /// Raises 61 or 57; what could not be written is lost then.
    void flush(std::FILE* file);
    [[nodiscard]] bool empty() const { return bytes_.empty(); }

  private:
    std::string bytes_;
};

/// Puts the next access at a distance in bytes from the start of the file. Raises 57.
void seek(std::FILE* file, std::uint64_t position);
/// Closes and raises 61 or 57 when the system could not keep all that was written.
void close_checked(FileHandle file);

} // namespace velmora::runtime
