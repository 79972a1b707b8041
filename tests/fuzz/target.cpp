#include "fuzz/target.h"

#include "fuzz/targets.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

namespace velmora::fuzz {

namespace {

constexpr auto kTargets = std::to_array<Target>({
    {"detection", detection},
    {"readers", readers},
    {"dispatcher", dispatcher},
    {"save_reopen", save_reopen},
    {"workbench", workbench},
    {"import", import_file},
    {"numbers", numbers},
    {"language_database", language_database},
    {"settings", settings},
    {"deployment", deployment},
    {"scenario", scenario},
});

} // namespace

std::span<const Target> targets() {
    return kTargets;
}

const Target* target_named(std::string_view name) {
    const auto* const found = std::ranges::find(kTargets, name, &Target::name);
    return found == kTargets.end() ? nullptr : &*found;
}

void promise(bool holds, std::string_view words) {
    if (holds)
        return;
    std::fprintf(stderr, "Broken promise: %.*s\n", static_cast<int>(words.size()), words.data());
    std::abort();
}

Choice::Choice(std::string_view bytes) {
    if (bytes.empty())
        return;
    left_ = static_cast<unsigned char>(bytes.front());
    rest_ = bytes.substr(1);
}

std::size_t Choice::below(std::size_t limit) {
    const std::size_t chosen = left_ % limit;
    left_ /= limit;
    return chosen;
}

} // namespace velmora::fuzz
