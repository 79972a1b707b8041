#include "adapters/sqlite/language_texts.h"

#include "adapters/sqlite/sqlite_connection.h"

#include <algorithm>

namespace velmora {

namespace {

using sqlite::Connection;
using sqlite::Statement;

// The work list of an adjustment, and the table that is made anew each time its window opens.
constexpr const char* kTablesOfTexts =
    "SELECT name FROM sqlite_master WHERE type = 'table'"
    " AND name NOT IN ('TEMP_AJUSTE', 'Mult_Ptos') ORDER BY name";

std::string text_of_row(const Statement& rows) {
    std::string text;
    for (const Value& value : rows.row())
        text += is_null(value) ? std::string("\x1D") : text_of(value) + '\x1F';
    return text + '\x1E';
}

std::string text_of_table(const Connection& connection, const std::string& name) {
    Statement statement(connection, "SELECT * FROM " + sqlite::quoted(name));
    std::vector<std::string> rows;
    while (statement.step())
        rows.push_back(text_of_row(statement));
    std::ranges::sort(rows);
    std::string text = name + '\x1E';
    for (const std::string& row : rows)
        text += row;
    return text;
}

} // namespace

std::string language_texts(std::string_view path) {
    const Connection connection = sqlite::connect(path);
    std::string text;
    Statement tables(connection, kTablesOfTexts);
    while (tables.step())
        text += text_of_table(connection, text_of(tables.column(0)));
    return text;
}

} // namespace velmora
