#include "formats/seen_file.h"

#include "document/state/loading.h"
#include "runtime/paths.h"

#include <filesystem>

namespace velmora {

namespace {

/// No time and no size where there is no file.
SeenFile as_it_is(const std::string& path) {
    const auto native = runtime::native_path(path);
    std::error_code fault;
    const auto size = std::filesystem::file_size(native, fault);
    if (fault)
        return {path, 0, 0};
    const auto written = std::filesystem::last_write_time(native, fault);
    return {path, size, fault ? 0 : written.time_since_epoch().count()};
}

bool was_seen(const std::string& path) {
    return !path.empty() && state::loading.seen.path == path;
}

} // namespace

void note_seen(const std::string& path) {
    state::loading.seen = as_it_is(path);
    ++state::loading.seen_times;
}

void note_unwritten() {
    state::loading.seen = {};
    ++state::loading.seen_times;
}

bool changed_since_seen(const std::string& path) {
    return was_seen(path) && runtime::file_exists(path) && as_it_is(path) != state::loading.seen;
}

bool folder_gone_since_seen(const std::string& path) {
    const auto folder = runtime::native_path(path).parent_path();
    std::error_code ignored;
    return was_seen(path) && !folder.empty() && !std::filesystem::exists(folder, ignored);
}

} // namespace velmora
