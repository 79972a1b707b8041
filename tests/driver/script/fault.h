// A fault of a script: what the driver can't do as written. Its text goes to standard error with
// the line's number, and the driver ends with status 2.
#pragma once

#include <stdexcept>
#include <string>

namespace velmora::driver {

struct ScriptFault : std::runtime_error {
    using std::runtime_error::runtime_error;
};

[[noreturn]] inline void fault(const std::string& reason) {
    throw ScriptFault(reason);
}

} // namespace velmora::driver
