#include "formats/draft.h"

#include "document/state/program.h"
#include "platform/platform.h"
#include "platform/shell.h"
#include "runtime/error.h"
#include "runtime/file_stream.h"
#include "runtime/paths.h"

#include <filesystem>

namespace velmora {

namespace {

using std::filesystem::file_status;

file_status status_of(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::status(runtime::native_path(path), ignored);
}

/// A folder, a pipe, a device.
void refuse_what_is_no_file(const std::string& path) {
    const file_status status = status_of(path);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        raise(error::path_access);
}

void make(const runtime::FileBeside& fresh) {
    runtime::close_checked(runtime::open_anew(runtime::native_path(fresh.path())));
}

void settle(const std::string& path) {
    platform().shell.settle(path);
}

void settle_folder_of(const std::string& path) {
    const auto folder = runtime::native_path(path).parent_path();
    settle(folder.empty() ? "." : runtime::path_text(folder));
}

bool may_be_written_over(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(runtime::native_path(path), ignored);
}

void copy_settled(const std::string& from, const std::string& to) {
    runtime::copy_file(from, to);
    settle(to);
}

} // namespace

Draft::Draft(std::string_view target) : target_(target) {
    refuse_what_is_no_file(target_);
    beside_.emplace(target_);
    trap([&] { make(*beside_); },
         [&](const RuntimeError& failure) {
             const bool folder_refuses =
                 failure.number == error::permission_denied || failure.number == error::path_access;
             if (!folder_refuses || !may_be_written_over(target_))
                 throw;
             beside_.reset();
             apart_.emplace(program_file("\\borrador"));
             make(*apart_);
         });
}

void Draft::take_place() {
    retire_target();
    take_name();
}

void Draft::retire_target() const {
    settle(path());
    settle_folder_of(path());
    if (beside_ && runtime::file_exists(target_))
        platform().shell.to_bin(target_);
}

void Draft::take_name() {
    if (apart_)
        return write_over();
    beside_->take_name();
    settle_folder_of(target_);
}

// The old bytes are kept apart meanwhile, and put back where the new ones find no room.
void Draft::write_over() {
    const runtime::FileBeside old(apart_->path());
    copy_settled(target_, old.path());
    trap([&] { copy_settled(path(), target_); },
         [&](const RuntimeError&) {
             trap([&] { copy_settled(old.path(), target_); }, [](const RuntimeError&) {});
             throw;
         });
    apart_.reset();
}

} // namespace velmora
