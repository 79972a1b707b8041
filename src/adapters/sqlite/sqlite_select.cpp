#include "adapters/sqlite/sqlite_select.h"

#include "runtime/text.h"

#include <utility>

namespace velmora::sqlite {

namespace {

class SelectRecordset : public Recordset {
  public:
    SelectRecordset(const Connection& connection, std::string_view text)
        : rows_(connection, text), has_row_(rows_.step()) {}

    void seek(std::initializer_list<std::string_view>) override { refuse(); }
    bool no_match() const override { return true; }

    Value field(std::string_view name) override {
        const int column = rows_.find(name);
        if (!has_row_)
            raise(error::no_current_record);
        return rows_.column(column);
    }
    void move_first() override {
        if (!at_first_)
            start_over();
        if (!has_row_)
            raise(error::no_current_record);
    }
    void move_next() override {
        if (!has_row_)
            raise(error::no_current_record);
        at_first_ = false;
        has_row_ = rows_.step();
    }
    bool eof() const override { return !has_row_; }

    void add_new() override { refuse(); }
    void set_field(std::string_view, const Value&) override { refuse(); }
    void update() override { refuse(); }

  private:
    // Sorting a long list a second time is spared where the first row is the present one.
    void start_over() {
        rows_.reset();
        has_row_ = rows_.step();
        at_first_ = true;
    }
    [[noreturn]] static void refuse() {
        raise(error::operation_not_supported, "the rows of a select are only read");
    }

    Statement rows_;
    bool has_row_;
    bool at_first_ = true;
};

// The statement with the order of adding as its last sort key; the statement itself where nothing
// is sorted. SQLite promises nothing for rows of equal order.
std::string with_stable_order(std::string_view statement) {
    const std::string text(statement.substr(0, statement.find_last_not_of("; \t\r\n") + 1));
    const bool sorted = runtime::UCase(text).find(" ORDER BY ") != std::string::npos;
    return sorted ? text + ", rowid" : text;
}

} // namespace

std::unique_ptr<Recordset> open_select(const Connection& connection, std::string_view statement) {
    return std::make_unique<SelectRecordset>(connection, with_stable_order(statement));
}

} // namespace velmora::sqlite
