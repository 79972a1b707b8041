#include "services/control_keys.h"

namespace velmora {

std::string key_of(const FormControl& control) {
    std::string key = control.name();
    passing_over([&] { key += std::to_string(control.index()); });
    return key;
}

} // namespace velmora
