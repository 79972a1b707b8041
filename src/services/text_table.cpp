#include "services/text_table.h"

#include "document/state/program.h"
#include "platform/database.h"
#include "platform/platform.h"
#include "runtime/error.h"
#include "runtime/text.h"

namespace velmora {

TextTable::TextTable(std::string_view table) {
    trap(
        [&] { table_ = platform().database.open_recordset(std::string(table), Access::read_only); },
        [](const RuntimeError&) {});
}

TextTable::~TextTable() = default;

std::string TextTable::text(std::string_view key, std::string_view otherwise) const {
    if (!table_)
        return std::string(otherwise);
    table_->seek({key, state::program.Idioma});
    if (table_->no_match())
        return std::string(otherwise);
    const Value value = table_->field("Descripcion");
    return is_null(value) ? std::string(otherwise) : std::string(runtime::Trim(text_of(value)));
}

void put_in(std::string& text, std::string_view mark, std::string_view value) {
    if (const auto at = text.find(mark); at != std::string::npos)
        text.replace(at, mark.size(), value);
}

} // namespace velmora
