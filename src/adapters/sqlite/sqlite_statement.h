// Prepared statements over SQLite's own interface.
#pragma once

#include "platform/database.h"
#include "runtime/error.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace velmora::sqlite {

/// Shared by the database and its recordsets: a closed file is let go with the last of them.
using Connection = std::shared_ptr<sqlite3>;

/// A name between double quotes.
[[nodiscard]] std::string quoted(std::string_view name);

/// Every fault raises its number. A fault or an end leaves no lock behind.
class Statement {
  public:
    /// Takes the first statement of the text; `rest`, where given, gets what follows it.
    Statement(Connection connection, std::string_view text, std::string_view* rest = nullptr);
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement();

    /// Parameters count from 1.
    void bind(int parameter, const Value& value);
    void bind(int parameter, std::string_view text);
    /// To the next row; false when there is none, or when the statement is done.
    bool step();
    void reset() noexcept;

    [[nodiscard]] int parameter_count() const;
    [[nodiscard]] int column_count() const;
    [[nodiscard]] Value column(int column) const;
    /// The column of a field's name, in either case of letters. Raises 3265.
    [[nodiscard]] int find(std::string_view field) const;
    /// All columns of the present row.
    [[nodiscard]] std::vector<Value> row() const;

  private:
    void check(int code) const;

    Connection connection_;
    sqlite3_stmt* statement_ = nullptr;
    std::vector<std::string> fields_;
};

} // namespace velmora::sqlite
