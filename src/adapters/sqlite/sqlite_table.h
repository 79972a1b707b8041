// A table as a recordset with its primary key.
#pragma once

#include "adapters/sqlite/sqlite_statement.h"

#include <memory>
#include <string_view>

namespace velmora::sqlite {

/// Raises 3078 when there is no such table.
[[nodiscard]] std::unique_ptr<Recordset> open_table(const Connection& connection,
                                                    std::string_view name, Access access);

} // namespace velmora::sqlite
