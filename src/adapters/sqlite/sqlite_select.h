// The rows of a select as a recordset.
#pragma once

#include "adapters/sqlite/sqlite_statement.h"

#include <memory>
#include <string_view>

namespace velmora::sqlite {

/// Rows of equal order come as they were added; so a select that sorts has one table and its
/// ORDER BY at the end.
[[nodiscard]] std::unique_ptr<Recordset> open_select(const Connection& connection,
                                                     std::string_view statement);

} // namespace velmora::sqlite
