// A user's place on the disk for hampered writers: a home with a recycle bin or without one, a
// folder of outlines, a program's folder.
#pragma once

#include "fakes/recording_platform.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace velmora::test {

enum class Bin { none, stands };

class Place {
  public:
    explicit Place(Bin bin);
    ~Place();
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    /// Leaves the outlines' folder, the bin and the program's folder empty.
    void clear() const;
    [[nodiscard]] std::string path(const std::string& name) const;
    void put(const std::string& name, const std::string& bytes) const;
    /// The bytes of an outline; "none" where it is not there.
    [[nodiscard]] std::string bytes(const std::string& name) const;
    [[nodiscard]] bool in_bin(const std::string& bytes) const;
    /// Files beside the outlines and in the program's folder that were on their way.
    [[nodiscard]] std::vector<std::string> left_over() const;

    RecordingPlatform machine;

  private:
    std::filesystem::path root_;
    std::unique_ptr<Shell> desktop_;
    std::unique_ptr<SettingsStore> settings_;
};

} // namespace velmora::test
