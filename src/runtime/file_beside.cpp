#include "runtime/file_beside.h"

#include "runtime/file_faults.h"
#include "runtime/paths.h"

namespace velmora::runtime {
namespace {

void raise_if(const std::error_code& fault) {
    if (fault)
        raise(fault_number(fault, FileNeed::made));
}

/// Short, so that a file of the longest name has one beside it too.
std::string free_name_beside(std::string_view target) {
    const auto folder = native_path(target).parent_path();
    std::error_code ignored;
    for (int number = 0;; ++number) {
        const auto path = folder / ("velmora-" + std::to_string(number) + ".tmp");
        if (!std::filesystem::exists(std::filesystem::symlink_status(path, ignored)))
            return path_text(path);
    }
}

} // namespace

FileBeside::FileBeside(std::string_view target)
    : target_(target), path_(free_name_beside(target)) {}

FileBeside::~FileBeside() {
    if (!path_.empty())
        remove_file(path_);
}

void FileBeside::take_permissions() const {
    std::error_code fault;
    const auto status = std::filesystem::status(native_path(target_), fault);
    if (!std::filesystem::exists(status))
        return;
    std::filesystem::permissions(native_path(path_), status.permissions(), fault);
    raise_if(fault);
}

void FileBeside::take_name(std::string_view name) {
    std::error_code fault;
    std::filesystem::rename(native_path(path_), native_path(name), fault);
    raise_if(fault);
    path_.clear();
}

std::string link_target(std::string_view path) {
    std::error_code fault;
    const auto native = native_path(path);
    if (!std::filesystem::is_symlink(native, fault))
        return std::string(path);
    const auto target = std::filesystem::canonical(native, fault);
    return fault ? std::string(path) : path_text(target);
}

void remove_broken_off(std::string_view path) {
    std::error_code ignored;
    const auto native = native_path(path);
    if (!std::filesystem::is_regular_file(native, ignored))
        return;
    if (!remove_file(path))
        std::filesystem::resize_file(native, 0, ignored);
}

} // namespace velmora::runtime
