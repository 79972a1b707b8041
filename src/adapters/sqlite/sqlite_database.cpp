#include "adapters/sqlite/sqlite_database.h"

#include "adapters/sqlite/sqlite_connection.h"
#include "adapters/sqlite/sqlite_select.h"
#include "adapters/sqlite/sqlite_table.h"
#include "runtime/text.h"

#include <sqlite3.h>

namespace velmora {

namespace {

using sqlite::Connection;
using sqlite::Statement;

bool is_select(std::string_view text) {
    return runtime::UCase(text.substr(0, 7)) == "SELECT ";
}

bool is_blank(std::string_view text) {
    return text.find_first_not_of("; \t\r\n") == std::string_view::npos;
}

// A comment outside the quotes. Texts are put into statements unescaped, and one with an apostrophe
// must not make the rest of its statement a comment.
bool has_comment(std::string_view statement) {
    bool in_text = false;
    for (std::size_t at = 0; at < statement.size(); ++at) {
        const std::string_view pair = statement.substr(at, 2);
        if (statement[at] == '\'')
            in_text = !in_text;
        else if (!in_text && (pair == "--" || pair == "/*"))
            return true;
    }
    return false;
}

class SqliteDatabase : public Database {
  public:
    void open(std::string_view path) override {
        close();
        connection_ = sqlite::connect(path);
    }
    void open_empty() override {
        close();
        connection_ = sqlite::connect_to_nothing();
    }
    void close() noexcept override {
        rollback();
        connection_.reset();
    }
    bool is_open() const override { return connection_ != nullptr; }

    std::unique_ptr<Recordset> open_recordset(std::string_view table_or_select,
                                              Access access) override {
        require_open();
        if (is_select(table_or_select))
            return sqlite::open_select(connection_, table_or_select);
        return sqlite::open_table(connection_, table_or_select, access);
    }
    void execute(std::string_view statement) override {
        require_open();
        if (is_blank(statement) || has_comment(statement))
            raise(error::statement_syntax, "no statement, or a comment in it");
        std::string_view rest;
        Statement prepared(connection_, statement, &rest);
        if (!is_blank(rest))
            raise(error::statement_syntax, "characters found after the end of the statement");
        prepared.step();
    }
    void begin() override {
        require_open();
        if (!in_transaction())
            execute("BEGIN");
    }
    void commit() override {
        require_open();
        if (in_transaction())
            execute("COMMIT");
    }
    void rollback() noexcept override {
        if (connection_ && in_transaction())
            sqlite3_exec(connection_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    }

  private:
    [[nodiscard]] bool in_transaction() const {
        return sqlite3_get_autocommit(connection_.get()) == 0;
    }
    void require_open() const {
        if (!connection_)
            raise(error::object_not_set);
    }

    Connection connection_;
};

} // namespace

std::unique_ptr<Database> make_sqlite_database() {
    return std::make_unique<SqliteDatabase>();
}

} // namespace velmora
