// The language database over SQLite's own interface.
#pragma once

#include "platform/database.h"

#include <memory>

namespace velmora {

[[nodiscard]] std::unique_ptr<Database> make_sqlite_database();

} // namespace velmora
