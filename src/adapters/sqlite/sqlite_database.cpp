#include "adapters/sqlite/sqlite_database.h"

namespace velmora {

namespace {
class SqliteDatabase : public Database {
  public:
    void open(std::string_view) override {}
    void close() noexcept override {}
    bool is_open() const override { return false; }
    std::unique_ptr<Recordset> open_recordset(std::string_view, Access) override { return nullptr; }
    void execute(std::string_view) override {}
    void begin() override {}
    void commit() override {}
};
} // namespace

std::unique_ptr<Database> make_sqlite_database() {
    return std::make_unique<SqliteDatabase>();
}

} // namespace velmora
