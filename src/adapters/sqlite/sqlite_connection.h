// The way to a database's file.
#pragma once

#include "adapters/sqlite/sqlite_statement.h"

#include <string_view>

namespace velmora::sqlite {

/// Opens a file and looks it through, so that one that is damaged shows here and not at the first
/// text. Raises as Database::open does.
[[nodiscard]] Connection connect(std::string_view path);

/// An empty database in memory.
[[nodiscard]] Connection connect_to_nothing();

} // namespace velmora::sqlite
