// The numbers that SQLite's faults have in the program.
#pragma once

#include "runtime/error.h"

struct sqlite3;

namespace velmora::sqlite {

/// The run-time error of the fault that the connection met last.
[[nodiscard]] RuntimeError fault_of(sqlite3* connection);

} // namespace velmora::sqlite
