#include "runtime/file_beside.h"

#include "runtime/file_faults.h"
#include "runtime/file_stream.h"
#include "runtime/paths.h"

#include <array>
#include <charconv>
#include <random>

namespace velmora::runtime {
namespace {

void raise_if(const std::error_code& fault) {
    if (fault)
        raise(fault_number(fault, FileNeed::made));
}

std::string any_number() {
    std::array<char, 16> digits{};
    std::random_device random;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), random(), 36).ptr;
    return {digits.data(), end};
}

} // namespace

// Another program may look for a name at the same moment, so a counted one would do for both.
std::string free_name_in(std::string_view folder, std::string_view before,
                         std::string_view behind) {
    std::error_code ignored;
    for (;;) {
        const std::string name = std::string(before) + any_number() + std::string(behind);
        const auto path = native_path(folder) / name;
        if (!std::filesystem::exists(std::filesystem::symlink_status(path, ignored)))
            return path_text(path);
    }
}

FileBeside::FileBeside(std::string_view target)
    : target_(target),
      path_(free_name_in(path_text(native_path(target).parent_path()), "velmora-", ".tmp")) {}

FileBeside::~FileBeside() {
    if (!path_.empty())
        remove_file(path_);
}

void FileBeside::take_permissions() const {
    std::error_code fault;
    const auto status = std::filesystem::status(native_path(target_), fault);
    if (!std::filesystem::exists(status))
        return;
    again_if_interrupted(fault, [&] {
        std::filesystem::permissions(native_path(path_), status.permissions(), fault);
    });
    raise_if(fault);
}

void FileBeside::take_name(std::string_view name) {
    std::error_code fault;
    again_if_interrupted(
        fault, [&] { std::filesystem::rename(native_path(path_), native_path(name), fault); });
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

} // namespace velmora::runtime
