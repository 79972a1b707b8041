// Texts of outline files for the tests, put together by hand and not by the writer under test.
#pragma once

#include "support/error_number.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmora::test {

using Fields = std::pair<std::string_view, std::string_view>;

inline std::string field(std::string_view text) {
    std::string padded(text);
    padded.resize(21, ' ');
    return padded;
}

inline std::string record(std::string_view field1, std::string_view field2) {
    return field(field1) + field(field2) + "\r\n";
}

inline std::string records(std::initializer_list<Fields> all) {
    std::string text;
    for (const auto& [field1, field2] : all)
        text += record(field1, field2);
    return text;
}

/// A sync DAT as the program writes it; the outline is given with its closing point.
inline std::string sync_file(std::initializer_list<Fields> outline,
                             std::initializer_list<Fields> sync,
                             std::string_view description = "ala") {
    return record("Fichero DAT(KMR)2002", description) + record("SLATEWORKS", "") +
           records(outline) + record("Puntos Sincronismo", "") + record("", "") + records(sync);
}

} // namespace velmora::test
