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

/// What the database alone can report, beside the numbers of runtime/error.h. These carry the
/// database's own text as description.
namespace error {
inline constexpr int database_locked = 3008;
inline constexpr int table_exists = 3010;
inline constexpr int no_new_row = 3020; ///< set_field, update without add_new
inline constexpr int database_read_only = 3027;
inline constexpr int database_not_opened = 3051;
inline constexpr int null_key = 3058;
inline constexpr int field_too_small = 3163;
inline constexpr int operation_not_supported = 3251;
} // namespace error

using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// Text of a value as a field gives it; Null raises 94.
[[nodiscard]] std::string text_of(const Value& value);
[[nodiscard]] inline bool is_null(const Value& value) {
    return std::holds_alternative<std::monostate>(value);
}

enum class Access { read_only, read_write };

/// An open table, to seek in and to add to, or the rows of a select, read forward from the first.
/// A table has no current row until a seek finds one. A field's name is taken in either case of
/// letters. Reading a field without a current row raises 3021, a name that is not a field 3265, and
/// asking a table for what only a select does, or the other way round, 3251.
class Recordset {
  public:
    virtual ~Recordset() = default;

    /// Index "PrimaryKey" of a table: looks for the row whose key fields equal the values, to the
    /// letter. Raises 3251 for a table without such a key.
    virtual void seek(std::initializer_list<std::string_view> key) = 0;
    /// The last seek found nothing.
    [[nodiscard]] virtual bool no_match() const = 0;

    [[nodiscard]] virtual Value field(std::string_view name) = 0;
    /// Raises 3021 when there is no row.
    virtual void move_first() = 0;
    /// Raises 3021 after the last row.
    virtual void move_next() = 0;
    [[nodiscard]] virtual bool eof() const = 0;

    /// Begins a new row, sets its fields, stores it; a field that was not set is Null. A key that
    /// is there already raises 3022, a table opened read-only 3027.
    virtual void add_new() = 0;
    virtual void set_field(std::string_view name, const Value& value) = 0;
    virtual void update() = 0;
};

class Database {
  public:
    virtual ~Database() = default;
    /// Opens a file that must exist; one that may not be written is open for reading. Raises 3044
    /// where it is missing, 3343 where it is not a database (an empty file is not), 3008 while
    /// another program has it locked, 3051 where it may not be read. What was open is closed first.
    virtual void open(std::string_view path) = 0;
    /// An empty one without a file, gone when it is closed.
    virtual void open_empty() = 0;
    virtual void close() noexcept = 0;
    [[nodiscard]] virtual bool is_open() const = 0;

    /// A table by its name, or the rows of a select statement, in the order that it asks for; rows
    /// of equal order come as they were added. Raises 91 when no database is open, 3078 when there
    /// is no such table.
    virtual std::unique_ptr<Recordset> open_recordset(std::string_view table_or_select,
                                                      Access access) = 0;
    /// One statement, failing whole. Raises 91, 3078, 3022, or 3075 for a fault in the statement: a
    /// comment in it or a second statement after it is one, and then nothing is executed.
    virtual void execute(std::string_view statement) = 0;

    /// All that comes until commit is one transaction; for many rows added at a time. A begin
    /// within one goes on with it, and closing the database drops what was not committed.
    virtual void begin() = 0;
    virtual void commit() = 0;
    /// Drops what was not committed; outside a transaction nothing.
    virtual void rollback() noexcept = 0;
};

} // namespace velmora
