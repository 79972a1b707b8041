// The two kinds of recordset: a table with its primary key, and the rows of a select.
#pragma once

#include "adapters/sqlite/sqlite_statement.h"

#include <memory>
#include <string_view>

namespace velmora::sqlite {

/// Raises 3078 when there is no such table.
[[nodiscard]] std::unique_ptr<Recordset> open_table(const Connection& connection,
                                                    std::string_view name, Access access);

/// Rows of equal order come as they were added; so a select that sorts has one table and its
/// ORDER BY at the end.
[[nodiscard]] std::unique_ptr<Recordset> open_select(const Connection& connection,
                                                     std::string_view statement);

} // namespace velmora::sqlite
