// The run-time's numbers for what the system answers about files.
#pragma once

#include "runtime/error.h"

#include <system_error>

namespace velmora::runtime {

/// What was wanted of a file: that it is there, or that it can be made.
enum class FileNeed { present, made };

/// 53 for a missing file, 76 for a missing folder of a file to be made, 70, 75, 61, 52; 57 for
/// what has no number of its own.
[[nodiscard]] int fault_number(const std::error_code& fault, FileNeed need);

/// Runs `operation`, which sets `fault`, again as long as a signal broke it off.
template <class Operation>
void again_if_interrupted(const std::error_code& fault, Operation&& operation) {
    do
        operation();
    while (fault == std::errc::interrupted);
}

} // namespace velmora::runtime
