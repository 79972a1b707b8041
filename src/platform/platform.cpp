#include "platform/platform.h"

#include <cassert>
#include <optional>

namespace velmora {

namespace {
std::optional<Platform>& current() {
    static std::optional<Platform> services;
    return services;
}
} // namespace

void set_platform(const Platform& services) {
    current().emplace(services);
}

void set_previews(Previews* pictures) {
    assert(current().has_value());
    current()->previews = pictures;
}

const Platform& platform() {
    assert(current().has_value());
    return *current();
}

} // namespace velmora
