// The language database: tables with keys that can be sought, records that can be read and added,
// statements that can be executed. A value is Null, a whole number, a number or a text (UTF-8).
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace velmora {

using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// Text of a value as a field gives it; Null raises 94.
[[nodiscard]] std::string text_of(const Value& value);
[[nodiscard]] inline bool is_null(const Value& value) {
    return std::holds_alternative<std::monostate>(value);
}

enum class Access { read_only, read_write };

/// An open table or the rows of a select. Reading a field without a current row raises 3021, a name
/// that is no field 3265.
class Recordset {
  public:
    virtual ~Recordset() = default;

    /// Index "PrimaryKey" of a table: looks for the row whose key fields equal the values.
    virtual void seek(std::initializer_list<std::string_view> key) = 0;
    /// The last seek found nothing.
    [[nodiscard]] virtual bool no_match() const = 0;

    [[nodiscard]] virtual Value field(std::string_view name) = 0;
    virtual void move_first() = 0;
    virtual void move_next() = 0;
    [[nodiscard]] virtual bool eof() const = 0;

    /// Begins a new row, sets its fields, stores it. A key that is there already raises 3022.
    virtual void add_new() = 0;
    virtual void set_field(std::string_view name, const Value& value) = 0;
    virtual void update() = 0;
};

class Database {
  public:
    virtual ~Database() = default;
    /// Opens a file that must exist. Raises 3044 or 3343 where it is missing or no database.
    virtual void open(std::string_view path) = 0;
    virtual void close() noexcept = 0;
    [[nodiscard]] virtual bool is_open() const = 0;

    /// A table by its name, or the rows of a select statement, in the order that it asks for; rows
    /// of equal order come as they were added. Raises 91 when no database is open, 3078 when there
    /// is no such table.
    virtual std::unique_ptr<Recordset> open_recordset(std::string_view table_or_select,
                                                      Access access) = 0;
    /// One statement, failing whole. Raises 91, 3078, 3022, or 3075 for a fault in the statement.
    virtual void execute(std::string_view statement) = 0;

    /// All that comes until the end is one transaction; for many rows added at a time.
    virtual void begin() = 0;
    virtual void commit() = 0;
};

} // namespace velmora
