#include "adapters/sqlite/sqlite_faults.h"

#include "platform/database.h"

#include <algorithm>
#include <iterator>
#include <sqlite3.h>

namespace velmora::sqlite {

namespace {

int number_of_constraint(int extended_code) {
    switch (extended_code) {
    case SQLITE_CONSTRAINT_CHECK:
        return error::field_too_small;
    case SQLITE_CONSTRAINT_NOTNULL:
        return error::null_key;
    default:
        return error::duplicate_key;
    }
}

// SQLite has one code for all that is wrong with a statement; only its text tells them apart.
int number_of_statement_fault(std::string_view text) {
    if (text.starts_with("no such table"))
        return error::table_not_found;
    if (text.starts_with("table ") && text.ends_with(" already exists"))
        return error::table_exists;
    return error::statement_syntax;
}

int number_of(int extended_code, std::string_view text) {
    switch (extended_code & 0xFF) {
    case SQLITE_CONSTRAINT:
        return number_of_constraint(extended_code);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return error::database_locked;
    case SQLITE_READONLY:
        return error::database_read_only;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return error::unrecognized_database;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return error::database_not_opened;
    case SQLITE_FULL:
        return error::disk_full;
    case SQLITE_IOERR:
        return error::device_io;
    case SQLITE_NOMEM:
        return error::out_of_memory;
    default:
        return number_of_statement_fault(text);
    }
}

// The run-time has texts for these in every language; the others say what SQLite says.
bool has_text_of_its_own(int number) {
    constexpr int known[] = {error::duplicate_key, error::table_not_found, error::disk_full,
                             error::device_io, error::out_of_memory};
    return std::ranges::find(known, number) != std::end(known);
}

} // namespace

RuntimeError fault_of(sqlite3* connection) {
    const std::string text = sqlite3_errmsg(connection);
    const int number = number_of(sqlite3_extended_errcode(connection), text);
    return RuntimeError(number, has_text_of_its_own(number) ? std::string{} : text);
}

} // namespace velmora::sqlite
