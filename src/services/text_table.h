// The texts of a window that no control holds, by key, in the language in use: a table of the
// language database such as importar_texts.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace velmora {

class Recordset;

class TextTable {
  public:
    explicit TextTable(std::string_view table);
    ~TextTable();
    TextTable(const TextTable&) = delete;
    TextTable& operator=(const TextTable&) = delete;

    /// The text of a key; `otherwise` where the table has none or can't be read.
    [[nodiscard]] std::string text(std::string_view key, std::string_view otherwise) const;
    [[nodiscard]] std::string text(std::string_view key) const { return text(key, key); }

  private:
    std::unique_ptr<Recordset> table_;
};

/// Puts a value into a text, in the place of a mark such as "{n}", where it has it.
void put_in(std::string& text, std::string_view mark, std::string_view value);

} // namespace velmora
