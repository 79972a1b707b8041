// Where things lie on the machine that builds.
#pragma once

#include <filesystem>

namespace velmora::test {

/// The checkout.
[[nodiscard]] std::filesystem::path source_dir();
/// The language database as the build wrote it.
[[nodiscard]] std::filesystem::path built_database();

} // namespace velmora::test
