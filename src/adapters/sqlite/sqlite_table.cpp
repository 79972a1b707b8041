#include "adapters/sqlite/sqlite_table.h"

#include <optional>
#include <string>
#include <utility>

namespace velmora::sqlite {

namespace {

// Empty for a table without a primary key.
std::string seek_text(const Connection& connection, std::string_view table) {
    Statement key(connection, "SELECT name FROM pragma_table_info(?) WHERE pk > 0 ORDER BY pk");
    key.bind(1, table);
    std::string text;
    while (key.step()) {
        text += text.empty() ? "SELECT * FROM " + quoted(table) + " WHERE " : " AND ";
        text += quoted(text_of(key.column(0))) + " = ?";
    }
    return text;
}

std::string insert_text(std::string_view table, int columns) {
    std::string text = "INSERT INTO " + quoted(table) + " VALUES (?";
    for (int column = 1; column < columns; ++column)
        text += ", ?";
    return text + ')';
}

// A row is copied out when it is found, so that a table that stays open holds no lock on the file.
class TableRecordset : public Recordset {
  public:
    TableRecordset(Connection connection, std::string_view table, Access access)
        : connection_(std::move(connection)), table_(table), access_(access),
          rows_(connection_, "SELECT * FROM " + quoted(table)) {}

    void seek(std::initializer_list<std::string_view> key) override {
        prepare_seek(key.size());
        int parameter = 0;
        for (const std::string_view part : key)
            seek_->bind(++parameter, part);
        row_.reset();
        if (seek_->step())
            row_ = seek_->row();
        seek_->reset();
        no_match_ = !row_;
    }
    bool no_match() const override { return no_match_; }

    Value field(std::string_view name) override {
        const auto column = static_cast<std::size_t>(rows_.find(name));
        if (!row_)
            raise(error::no_current_record);
        return (*row_)[column];
    }
    void move_first() override { refuse_to_move(); }
    void move_next() override { refuse_to_move(); }
    bool eof() const override { return !row_; }

    void add_new() override {
        if (access_ == Access::read_only)
            raise(error::database_read_only);
        new_row_.emplace(static_cast<std::size_t>(rows_.column_count()));
    }
    void set_field(std::string_view name, const Value& value) override {
        const auto column = static_cast<std::size_t>(rows_.find(name));
        the_new_row()[column] = value;
    }
    void update() override {
        const std::vector<Value> row = std::move(the_new_row());
        new_row_.reset();
        if (!insert_)
            insert_.emplace(connection_, insert_text(table_, rows_.column_count()));
        for (std::size_t column = 0; column < row.size(); ++column)
            insert_->bind(static_cast<int>(column) + 1, row[column]);
        insert_->step();
        insert_->reset();
    }

  private:
    void prepare_seek(std::size_t parts) {
        if (!seek_)
            seek_.emplace(connection_, seek_text(connection_, table_));
        if (parts != static_cast<std::size_t>(seek_->parameter_count()) || parts == 0)
            raise(error::operation_not_supported, "the table has no such key");
    }
    [[noreturn]] static void refuse_to_move() {
        raise(error::operation_not_supported, "a table is not read row by row");
    }
    std::vector<Value>& the_new_row() {
        if (!new_row_)
            raise(error::no_new_row, "no new row was begun");
        return *new_row_;
    }

    Connection connection_;
    std::string table_;
    Access access_;
    Statement rows_;
    std::optional<Statement> seek_;
    std::optional<Statement> insert_;
    std::optional<std::vector<Value>> row_;
    std::optional<std::vector<Value>> new_row_;
    bool no_match_ = false;
};

} // namespace

std::unique_ptr<Recordset> open_table(const Connection& connection, std::string_view name,
                                      Access access) {
    return std::make_unique<TableRecordset>(connection, name, access);
}

} // namespace velmora::sqlite
