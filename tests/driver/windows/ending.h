// The end of the driver, from wherever it is reached: what was made is taken away and the process
// ends at once, without unwinding the program's handlers.
#pragma once

#include <string>

namespace velmora::driver {

class Folders;

enum class ExitStatus {
    done = 0,
    run_time_error = 1,
    script_fault = 2,
    timed_out = 3,
};

/// The folders that `leave` removes; they must live until then.
void remove_at_end(const Folders& folders);
[[noreturn]] void leave(ExitStatus status);
/// Ends with the fault's line and reason on standard error.
[[noreturn]] void leave_with_fault(int line, const std::string& reason);

} // namespace velmora::driver
