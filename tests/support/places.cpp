#include "support/places.h"

namespace velmora::test {

std::filesystem::path source_dir() {
    return VELMORA_SOURCE_DIR;
}

std::filesystem::path built_database() {
    return VELMORA_TEST_DATABASE;
}

} // namespace velmora::test
