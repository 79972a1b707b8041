#include "adapters/sqlite/sqlite_statement.h"

#include "adapters/sqlite/sqlite_faults.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

namespace velmora::sqlite {

namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool same_name(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) { return lower(x) == lower(y); });
}

int bind_text(sqlite3_stmt* statement, int parameter, std::string_view text) {
    // An empty view may hold no pointer, and that would be taken for Null.
    const char* bytes = text.empty() ? "" : text.data();
    return sqlite3_bind_text64(statement, parameter, bytes, text.size(), SQLITE_TRANSIENT,
                               SQLITE_UTF8);
}

struct BindValue {
    sqlite3_stmt* statement;
    int parameter;

    int operator()(std::monostate) const { return sqlite3_bind_null(statement, parameter); }
    int operator()(std::int64_t number) const {
        return sqlite3_bind_int64(statement, parameter, number);
    }
    int operator()(double number) const {
        return sqlite3_bind_double(statement, parameter, number);
    }
    int operator()(const std::string& text) const { return bind_text(statement, parameter, text); }
};

std::string text_of_column(sqlite3_stmt* statement, int column) {
    const void* bytes = sqlite3_column_blob(statement, column);
    const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
    return length == 0 ? std::string{} : std::string(static_cast<const char*>(bytes), length);
}

} // namespace

std::string quoted(std::string_view name) {
    std::string text = "\"";
    for (const char c : name)
        text.append(c == '"' ? 2 : 1, c);
    return text + '"';
}

Statement::Statement(Connection connection, std::string_view text, std::string_view* rest)
    : connection_(std::move(connection)) {
    const char* tail = nullptr;
    check(sqlite3_prepare_v2(connection_.get(), text.data(), static_cast<int>(text.size()),
                             &statement_, &tail));
    if (rest != nullptr)
        *rest = text.substr(static_cast<std::size_t>(tail - text.data()));
    for (int column = 0; column < column_count(); ++column)
        fields_.emplace_back(sqlite3_column_name(statement_, column));
}

Statement::~Statement() {
    sqlite3_finalize(statement_);
}

void Statement::bind(int parameter, const Value& value) {
    check(std::visit(BindValue{statement_, parameter}, value));
}

void Statement::bind(int parameter, std::string_view text) {
    check(bind_text(statement_, parameter, text));
}

bool Statement::step() {
    const int code = sqlite3_step(statement_);
    if (code == SQLITE_ROW)
        return true;
    if (code == SQLITE_DONE)
        return false;
    const RuntimeError fault = fault_of(connection_.get());
    reset();
    throw fault;
}

void Statement::reset() noexcept {
    sqlite3_reset(statement_);
}

int Statement::parameter_count() const {
    return sqlite3_bind_parameter_count(statement_);
}

int Statement::column_count() const {
    return sqlite3_column_count(statement_);
}

Value Statement::column(int column) const {
    switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return std::int64_t{sqlite3_column_int64(statement_, column)};
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement_, column);
    default:
        return text_of_column(statement_, column);
    }
}

int Statement::find(std::string_view field) const {
    const auto found = std::ranges::find_if(
        fields_, [&](const std::string& name) { return same_name(name, field); });
    if (found == fields_.end())
        raise(error::item_not_found);
    return static_cast<int>(found - fields_.begin());
}

std::vector<Value> Statement::row() const {
    std::vector<Value> values;
    for (int at = 0; at < column_count(); ++at)
        values.push_back(column(at));
    return values;
}

void Statement::check(int code) const {
    if (code != SQLITE_OK)
        throw fault_of(connection_.get());
}

} // namespace velmora::sqlite
