#include "adapters/sqlite/sqlite_connection.h"

#include "adapters/sqlite/sqlite_faults.h"
#include "runtime/paths.h"

#include <sqlite3.h>

namespace velmora::sqlite {

namespace {

// A file that another program has locked must never hold up the start.
constexpr int kBusyMilliseconds = 200;

// An empty file passes for a database without tables as long as nobody looks.
void refuse_empty(const Connection& connection) {
    Statement pages(connection, "PRAGMA page_count");
    if (pages.step() && pages.column(0) == Value{std::int64_t{0}})
        raise(error::unrecognized_database, "file is empty");
}

// Gives the first fault as a row, or "ok".
void refuse_damaged(const Connection& connection) {
    Statement check(connection, "PRAGMA quick_check(1)");
    if (check.step() && check.column(0) != Value{std::string("ok")})
        raise(error::unrecognized_database, "database disk image is malformed");
}

// A write-protected file is opened for reading by these flags.
Connection open_at(const char* file) {
    sqlite3* handle = nullptr;
    const int code =
        sqlite3_open_v2(file, &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_EXRESCODE, nullptr);
    if (handle == nullptr)
        raise(error::out_of_memory);
    Connection connection(handle, sqlite3_close_v2);
    if (code != SQLITE_OK)
        throw fault_of(handle);
    return connection;
}

} // namespace

Connection connect(std::string_view path) {
    if (!runtime::file_exists(path))
        raise(error::invalid_database_path);
    Connection connection = open_at(runtime::path_text(runtime::native_path(path)).c_str());
    sqlite3_busy_timeout(connection.get(), kBusyMilliseconds);
    Statement(connection, "SELECT count(*) FROM sqlite_master").step();
    refuse_empty(connection);
    refuse_damaged(connection);
    return connection;
}

Connection connect_to_nothing() {
    return open_at(":memory:");
}

} // namespace velmora::sqlite
