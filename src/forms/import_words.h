// What the import says, in the program's language: the texts of the table importar_texts.
#pragma once

#include "import/imported.h"
#include "services/text_table.h"

#include <string>
#include <string_view>

namespace velmora {

class ImportWords : public TextTable {
  public:
    ImportWords();

    /// The text of a key with `value` in the place of {n}.
    [[nodiscard]] std::string text_with(std::string_view key, std::string_view value) const;

    /// A line for each remark; of many alike the first ones, and how many more there are.
    [[nodiscard]] std::string report(const imports::Report& report) const;
    /// The row of a chain in the list, `number` from 1.
    [[nodiscard]] std::string chain(const imports::Chain& chain, std::size_t number,
                                    bool in_mm) const;

  private:
    [[nodiscard]] std::string remark(const imports::Remark& remark) const;
};

} // namespace velmora
